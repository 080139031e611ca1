// Nothing that was typed is lost: recovery files, other workbenches, disks that fail.

#include "WorkbenchTest.h"

#include "project/RecoveryFile.h"
#include "support/TestProgram.h"
#include "workbench/OpeningFault.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/saving/RecoveryDialog.h"
#include "workbench/saving/RecoveryKeeper.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr auto patience = 10000;

QString recoveryFile(const WorkbenchWindow &workbench, const QString &tail = u".recovery.txt"_s)
{
    return workbench.folder.filePath(u"one.json"_s + tail);
}

// What a workbench that was killed has left.
void leaveWork(const WorkbenchWindow &workbench, const QString &program)
{
    const QString project = workbench.folder.filePath(u"one.json"_s);
    QByteArray json = readFile(project);
    json.replace("Temp1", "Room");
    writeFile(recoveryFile(workbench),
              recoveryText({project, QDateTime::currentDateTimeUtc(), json, {program}}));
}

void press(QWidget &dialog, const QString &caption)
{
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text().remove(u'&') == caption)
            return button->click();
    }
    QFAIL("no such button");
}

} // namespace

class RecoveringTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsTypedIsKeptUntilItIsSaved()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QTest::qWait(0);
        QVERIFY(!QFile::exists(recoveryFile(workbench)));
        workbench.type(u"x"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recoveryFile(workbench)), patience);
        const auto kept = readRecovery(readFile(recoveryFile(workbench)));
        QVERIFY(kept);
        QCOMPARE(kept->programs, QStringList(u"xFan1 = ON"_s));
        QCOMPARE(kept->projectFile, workbench.folder.filePath(u"one.json"_s));
        workbench.type(u"y"_s);
        QTRY_VERIFY_WITH_TIMEOUT(readFile(recoveryFile(workbench)).contains("xyFan1 = ON"),
                                 patience);
        workbench.choose(u"Save"_s);
        QVERIFY(!QFile::exists(recoveryFile(workbench)));
    }

    void nothingIsKeptOfWhatWasTakenBack()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recoveryFile(workbench)), patience);
        workbench.key(Qt::Key_Backspace);
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(recoveryFile(workbench)), patience);
    }

    void whatIsDiscardedIsNotKept()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recoveryFile(workbench)), patience);
        NextMessage stay(QMessageBox::Cancel);
        QVERIFY(!workbench.window.close());
        QVERIFY(QFile::exists(recoveryFile(workbench)));
        NextMessage discard(QMessageBox::Discard);
        QVERIFY(workbench.window.close());
        QVERIFY(!QFile::exists(recoveryFile(workbench)));
    }

    void whatWasLeftIsComparedAndRestored()
    {
        WorkbenchWindow workbench("Fan1 = ON\nENDIF");
        leaveWork(workbench, u"Fan1 = OFF\r\nENDIF"_s);
        QStringList shown;
        NextDialog<RecoveryDialog> offer([&shown](RecoveryDialog &dialog) {
            auto *lines = dialog.findChild<QTreeWidget *>();
            for (int i = 0; i < lines->topLevelItemCount(); ++i) {
                const QTreeWidgetItem *line = lines->topLevelItem(i);
                shown.append(line->text(1) + line->text(2) + u'|' + line->text(3));
            }
            press(dialog, u"Restore"_s);
        });
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        QVERIFY(offer.wasThere());
        QVERIFY2(shown.contains(u"~Fan1 = ON|Fan1 = OFF"_s), qPrintable(shown.join(u'\n')));
        QVERIFY2(!shown.filter(u"Room"_s).isEmpty(), qPrintable(shown.join(u'\n')));
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = OFF\r\nENDIF"_s);
        QVERIFY(workbench.window.isWindowModified());
        QVERIFY(!QFile::exists(recoveryFile(workbench)));
        QVERIFY(QFile::exists(recoveryFile(workbench, u".recovery-2.txt"_s)));
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), "Fan1 = OFF\nENDIF");
        QVERIFY(readFile(workbench.folder.filePath(u"one.json"_s)).contains("\"Room\""));
        QCOMPARE(QDir(workbench.folder.path()).entryList({u"*.recovery*"_s}), QStringList());
    }

    void itsDateIsWrittenAsTheLanguageDoes()
    {
        WorkbenchWindow workbench("Fan1 = ON\nENDIF");
        leaveWork(workbench, u"Fan1 = OFF\r\nENDIF"_s);
        workbench.speak(QLocale::German);
        const QString today =
            QLocale(QLocale::German).toString(QDate::currentDate(), QLocale::ShortFormat);
        QString said;
        NextDialog<RecoveryDialog> offer([&said](RecoveryDialog &dialog) {
            said = dialog.findChild<QLabel *>()->text();
            dialog.reject();
        });
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        QVERIFY(offer.wasThere());
        QVERIFY2(said.contains(today + u' '), qPrintable(said)); // before midnight
    }

    void whatWasLeftCanBeDiscardedOrWait()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        const QString project = workbench.folder.filePath(u"one.json"_s);
        leaveWork(workbench, u"x"_s);
        for (const bool discards : {false, true}) {
            NextDialog<RecoveryDialog> offer([discards](RecoveryDialog &dialog) {
                press(dialog, discards ? u"Discard"_s : u"Decide Later"_s);
            });
            workbench.window.openForUser(project);
            QVERIFY(offer.wasThere());
            QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
            QCOMPARE(QFile::exists(recoveryFile(workbench)), !discards);
        }
    }

    void damagedWorkIsToldAndStays()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        writeFile(recoveryFile(workbench), "half");
        NextMessage told(QMessageBox::Ok);
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        QVERIFY(told.wasThere());
        QVERIFY2(told.text().contains(recoveryFile(workbench)), qPrintable(told.text()));
        QCOMPARE(readFile(recoveryFile(workbench)), "half");
    }

    void twoWorkbenchesKeepTheirOwn()
    {
        WorkbenchWindow one("Fan1 = ON");
        MainWindow two(one.languages);
        two.openProject(one.folder.filePath(u"one.json"_s));
        QVERIFY(two.statusBar()->currentMessage().contains(u"Another workbench"_s));
        two.show();
        one.type(u"x"_s);
        QTest::keyClick(two.findChild<ORVListView *>(u"Program"_s)->RTextBox(), Qt::Key_Y);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recoveryFile(one, u".recovery-2.txt"_s)), patience);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recoveryFile(one)), patience);
        QVERIFY(readFile(recoveryFile(one)).contains("\nxFan1 = ON\n"));
        QVERIFY(readFile(recoveryFile(one, u".recovery-2.txt"_s)).contains("\nyFan1 = ON\n"));
    }

    void aFolderThatVanishesLosesNothing()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QVERIFY(QDir().mkdir(workbench.folder.filePath(u"sub"_s)));
        const QString project = workbench.writeProject(u"sub/two"_s, {});
        const QByteArray json = readFile(project);
        writeFile(project, QByteArray(json).replace("sub/", ""));
        workbench.window.openProject(project);
        QVERIFY(QDir(workbench.folder.filePath(u"sub"_s)).removeRecursively());
        workbench.type(u"x"_s);
        const QDir kept(workbench.folder.filePath(u"data"_s));
        const auto isKept = [&kept] {
            QDirIterator files(kept.path(), {u"*.recovery.txt"_s}, QDir::Files,
                               QDirIterator::Subdirectories);
            return files.hasNext() && readFile(files.next()).contains("\nx\n");
        };
        QTRY_VERIFY_WITH_TIMEOUT(isKept(), patience);

        const QString other = workbench.folder.filePath(u"other.json"_s);
        std::unique_ptr<NextDialog<QFileDialog>> place;
        NextDialog<QMessageBox> failure([&](QMessageBox &box) {
            place = std::make_unique<NextDialog<QFileDialog>>([&other](QFileDialog &files) {
                files.selectFile(other);
                QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
            });
            press(box, u"Save Elsewhere…"_s);
        });
        workbench.choose(u"Save"_s);
        QVERIFY(failure.wasThere());
        QVERIFY(place && place->wasThere());
        QVERIFY(!workbench.window.isWindowModified());
        QCOMPARE(readFile(workbench.folder.filePath(u"two.prog"_s)), "x");
        QVERIFY(readFile(other).contains("two.prog"));
        QVERIFY(!isKept());
        workbench.type(u"y"_s);
        workbench.choose(u"Save"_s);
        QCOMPARE(readFile(workbench.folder.filePath(u"two.prog"_s)), "xy");
    }

    // A renamed point is in two files, and the second one cannot be written.
    void whatIsSavedByHalvesIsKeptWhole()
    {
        WorkbenchWindow workbench("Fan1 = Temp1");
        NextDialog<RenameDialog> places([](RenameDialog &dialog) { dialog.accept(); });
        workbench.window.findChild<PointRenaming *>()->rename(dsInput, 0, u"Room"_s);
        QVERIFY(places.wasThere());
        const QString program = workbench.folder.filePath(u"one.prog"_s);
        QVERIFY(QFile::remove(program));
        QVERIFY(QDir().mkdir(program));
        std::optional<RecoveredWork> kept;
        NextDialog<QMessageBox> failure([&](QMessageBox &box) {
            if (QFile::exists(recoveryFile(workbench)))
                kept = readRecovery(readFile(recoveryFile(workbench)));
            press(box, u"Cancel"_s);
        });
        workbench.choose(u"Save"_s);
        QVERIFY(failure.wasThere());
        QVERIFY(readFile(workbench.folder.filePath(u"one.json"_s)).contains("Room"));
        QVERIFY(kept);
        QVERIFY(kept->json.contains("Room"));
        QCOMPARE(kept->programs, QStringList(u"Fan1 = Room"_s));
    }

    void whatIsKeptIsNotWrittenAgain()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        auto &keeper = *workbench.window.findChild<RecoveryKeeper *>();
        const QSignalSpy written(&keeper, &RecoveryKeeper::keeping);
        QVERIFY(keeper.keepNow());
        QVERIFY(keeper.keepNow());
        QCOMPARE(written.size(), 1);
    }

    void aProjectThatCannotBeOpenedLeavesTheWindow()
    {
        WorkbenchWindow workbench;
        MainWindow window(workbench.languages);
        window.show();
        const QString project = workbench.folder.filePath(u"bad.json"_s);
        writeFile(project, "{");
        window.openForUser(project);
        auto *fault = window.findChild<OpeningFault *>();
        QVERIFY(fault->isVisible());
        QStringList texts;
        for (const QLabel *label : fault->findChildren<QLabel *>())
            texts.append(label->text());
        QVERIFY2(texts.join(u'\n').contains(u"bad.json"_s), qPrintable(texts.join(u'\n')));
        window.showType(dsInput); // nothing is there to be shown
        for (QAction *action : window.findChildren<QAction *>()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Save) ||
                action->shortcut() == QKeySequence(Qt::Key_F5))
                action->trigger();
        }
        writeFile(project, readFile(workbench.folder.filePath(u"one.json"_s)));
        press(*fault, u"Try Again"_s);
        QVERIFY(!fault->isVisible());
        QCOMPARE(window.windowTitle(), u"one[*]"_s);
    }
};

ORVT_TEST(RecoveringTest)
#include "RecoveringTest.moc"
