// Projects come and go: new, opened, opened again, closed.

#include "WorkbenchTest.h"

#include "project/Project.h"
#include "support/TestProgram.h"
#include "workbench/life/FirstPicture.h"
#include "workbench/life/NewProjectDialog.h"
#include "workbench/life/RecentMenu.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/life/StartPage.h"
#include "workbench/settings/ColourSets.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QSettings>
#include <QtGui/QPaintEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QStringList captions(const RecentMenu &menu)
{
    QStringList result;
    for (const QAction *action : menu.actions()) {
        if (!action->isSeparator())
            result.append(action->text());
    }
    return result;
}

QAction *entryOf(QMenu &menu, const QString &part)
{
    Q_EMIT menu.aboutToShow();
    for (QAction *action : menu.actions()) {
        if (action->text().remove(u'&').contains(QString(part).remove(u'&')))
            return action;
    }
    return nullptr;
}

} // namespace

class ProjectLifeTest : public WidgetTest
{
    Q_OBJECT

private:
    static RecentMenu &recentMenu(WorkbenchWindow &workbench)
    {
        return *workbench.window.menuBar()->findChild<RecentMenu *>();
    }
    static StartPage &page(WorkbenchWindow &workbench)
    {
        return *workbench.window.findChild<StartPage *>();
    }

private Q_SLOTS:
    void aNewProjectIsMadeAndOpened()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QString said;
        NextDialog<NewProjectDialog> dialog([&](NewProjectDialog &asked) {
            auto fields = asked.findChildren<QLineEdit *>();
            auto *create = asked.findChild<QDialogButtonBox *>()->buttons().constLast();
            for (QAbstractButton *button : asked.findChild<QDialogButtonBox *>()->buttons()) {
                if (button->text().contains(u"Create"_s))
                    create = button;
            }
            QVERIFY(!create->isEnabled());
            QTest::keyClicks(fields.at(0), u"one"_s);
            QVERIFY(!create->isEnabled()); // its program is there already
            QTest::keyClicks(fields.at(0), u" & %2"_s);
            QVERIFY(create->isEnabled());
            fields.at(1)->setText(workbench.folder.filePath(u"one.prog/missing"_s)); // a file
            QVERIFY(!create->isEnabled());
            fields.at(1)->setText(u"missing"_s); // nobody knows where
            QVERIFY(!create->isEnabled());
            fields.at(1)->setText(workbench.folder.path());
            QVERIFY(create->isEnabled());
            fields.at(1)->setText(workbench.folder.filePath(u"new/newer"_s));
            create->click();
        });
        workbench.choose(u"New Project…"_s);
        QVERIFY(dialog.wasThere());
        const QString file = workbench.folder.filePath(u"new/newer/one & %2.orvt.json"_s);
        QVERIFY(QFile::exists(file));
        const RichTextSettings colours = Project(file).editor();
        for (const ClassColour colour : classColours)
            QCOMPARE(colours.*colour, readyColours(ColourSet::Light).*colour);
        QVERIFY(colours.BackColor < 0); // the system's, so it follows light and dark
        QCOMPARE(workbench.window.windowTitle(), u"one & %2[*]"_s);
        QCOMPARE(workbench.code().CodeText(), QString());
        QVERIFY(!workbench.window.isWindowModified());
        workbench.type(u"a"_s);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(u"new/newer/one & %2"_s), "a");
        QCOMPARE(workbench.saved(), "Fan1 = ON");
    }

    void theFirstStepsLeadToANewProject()
    {
        WorkbenchWindow workbench;
        workbench.choose(u"First Steps"_s);
        NextDialog<NewProjectDialog> dialog([](NewProjectDialog &asked) { asked.reject(); });
        for (auto *button : workbench.window.findChildren<QPushButton *>()) {
            if (button->text() == u"New Project…"_s && button->isVisible())
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QVERIFY(dialog.wasThere());
    }

    void noProjectIsProposedBesideTheSample()
    {
        WorkbenchWindow workbench;
        QString proposed;
        const auto look = [&proposed](NewProjectDialog &asked) {
            proposed = asked.findChildren<QLineEdit *>().at(1)->text();
            asked.reject();
        };
        NextDialog<NewProjectDialog> beside(look);
        workbench.choose(u"New Project…"_s);
        QVERIFY(beside.wasThere());
        QCOMPARE(proposed, QDir::toNativeSeparators(workbench.folder.path()));
        QVERIFY(QFile::rename(workbench.folder.filePath(u"one.json"_s),
                              workbench.folder.filePath(u"away.json"_s)));
        workbench.window.setSample(workbench.folder.filePath(u"nowhere/sample.json"_s));
        NextDialog<NewProjectDialog> vanished(look); // neither file is there
        workbench.choose(u"New Project…"_s);
        QVERIFY(vanished.wasThere());
        QCOMPARE(proposed, QDir::toNativeSeparators(workbench.folder.path()));
        workbench.window.setSample(workbench.folder.filePath(u"one.json"_s));
        NextDialog<NewProjectDialog> elsewhere(look);
        workbench.choose(u"New Project…"_s);
        QVERIFY(elsewhere.wasThere());
        QVERIFY(proposed != QDir::toNativeSeparators(workbench.folder.path()));
        QVERIFY(QDir(proposed).exists()); // not everybody has a folder for documents
    }

    // The ending is that of what desktops know as a project; any other one can be typed.
    void savingElsewhereProposesTheUsualEnding()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QVERIFY(QDir(workbench.folder.path()).mkdir(u"sub"_s));
        const auto savedAs = [&](const QString &typed) {
            QString proposed;
            NextDialog<QFileDialog> dialog([&](QFileDialog &files) {
                proposed = QFileInfo(files.selectedFiles().value(0)).fileName();
                files.selectFile(workbench.folder.filePath(u"sub/"_s + typed));
                QMetaObject::invokeMethod(&files, "accept");
            });
            workbench.choose(u"Save As…"_s);
            return proposed;
        };
        QCOMPARE(savedAs(u"two"_s), u"one.orvt.json"_s);
        QVERIFY(QFile::exists(workbench.folder.filePath(u"sub/two.orvt.json"_s)));
        QCOMPARE(savedAs(u"three.json"_s), u"two.orvt.json"_s);
        QVERIFY(QFile::exists(workbench.folder.filePath(u"sub/three.json"_s)));
        QVERIFY(!workbench.window.isWindowModified());
    }

    void whatIsNotSavedIsAskedForBeforeAProjectGoes()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        NextMessage stay(QMessageBox::Cancel);
        workbench.choose(u"Close Project"_s);
        QVERIFY(stay.wasThere());
        QVERIFY(workbench.code().isVisible());
        NextMessage save(QMessageBox::Save);
        workbench.choose(u"Close Project"_s);
        QVERIFY(save.wasThere());
        QVERIFY(page(workbench).isVisible());
        QCOMPARE(workbench.saved(), "xFan1 = ON");
    }

    void aClosedProjectIsLetGo()
    {
        WorkbenchWindow workbench("Fan1 = Temp1");
        workbench.window.showType(dsInput);
        const QString lock = workbench.folder.filePath(u".one.json.recovery.lock"_s);
        QVERIFY(QFile::exists(lock));
        workbench.choose(u"Close Project"_s);
        QVERIFY(page(workbench).isVisible());
        QVERIFY(!QFile::exists(lock));
        QCOMPARE(workbench.window.windowTitle(), QGuiApplication::applicationDisplayName());
        QCOMPARE(workbench.statusTexts().remove(u'|'), QString());
        for (const QString &caption :
             {u"Save"_s, u"Save As…"_s, u"Export…"_s, u"Print…"_s, u"Close Project"_s})
            QVERIFY2(!workbench.command(caption)->isEnabled(), qPrintable(caption));
        for (const qsizetype menu : {1, 2, 3}) // Edit, Program, Points
            QVERIFY(!workbench.menus().at(menu)->menuAction()->isEnabled());
        for (QAction *action : workbench.window.findChildren<QAction *>()) {
            if (action->shortcut() == QKeySequence(Qt::Key_F5) ||
                action->shortcut() == QKeySequence(Qt::Key_F6) ||
                action->shortcut() == QKeySequence(Qt::Key_F12) ||
                action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_Z))
                action->trigger(); // nothing is there
        }
        QTest::qWait(700); // what reads, analyses and keeps has its turn
        workbench.speak(QLocale(QLocale::German));
        workbench.speak(QLocale(QLocale::English));
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        QVERIFY(!page(workbench).isVisible());
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = Temp1"_s);
        QVERIFY(workbench.command(u"Save"_s)->isEnabled());
        QVERIFY(workbench.menus().at(1)->menuAction()->isEnabled());
        QVERIFY(QFile::exists(lock));
    }

    void theLatestStandsFirst()
    {
        WorkbenchWindow workbench;
        const QString one = workbench.folder.filePath(u"one.json"_s);
        const QString two = workbench.writeProject(u"a & b %2, c"_s, "x");
        QCOMPARE(captions(recentMenu(workbench)).size(), 3); // nobody has opened one by hand
        workbench.window.openForUser(one);
        workbench.window.openForUser(two);
        workbench.window.openForUser(one);
        QCOMPARE(workbench.window.recentProjects().files(), QStringList({one, two}));
        entryOf(recentMenu(workbench), u"one.json"_s);
        const QStringList shown = captions(recentMenu(workbench));
        QVERIFY2(shown.at(0).startsWith(u"&1 one.json — "_s), qPrintable(shown.at(0)));
        QVERIFY2(shown.at(1).startsWith(u"&2 a && b %2, c.json — "_s), qPrintable(shown.at(1)));
        entryOf(recentMenu(workbench), u"a & b %2, c.json"_s)->trigger();
        QTRY_COMPARE(workbench.window.windowTitle(), u"a & b %2, c[*]"_s);
        QCOMPARE(workbench.window.recentProjects().files(), QStringList({two, one}));
        entryOf(recentMenu(workbench), u"Clear List"_s)->trigger();
        QCOMPARE(workbench.window.recentProjects().files(), QStringList());
    }

    void aProjectThatIsGoneIsTold()
    {
        WorkbenchWindow workbench("x");
        const QString two = workbench.writeProject(u"two"_s, "y");
        workbench.window.openForUser(two);
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        QVERIFY(QFile::remove(two));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            NextMessage told(answer);
            entryOf(recentMenu(workbench), u"two.json"_s)->trigger();
            QTRY_VERIFY(told.wasThere());
            QVERIFY2(told.text().contains(QDir::toNativeSeparators(two)), qPrintable(told.text()));
            QCOMPARE(workbench.window.windowTitle(), u"one[*]"_s);
            QTRY_COMPARE(workbench.window.recentProjects().files().contains(two),
                         answer == QMessageBox::No);
        }
    }

    void thePageOpensWhatWasOpenedLast()
    {
        WorkbenchWindow workbench("x");
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        workbench.choose(u"Close Project"_s);
        auto *files = page(workbench).findChild<QListWidget *>();
        QVERIFY(files->isVisible());
        QCOMPARE(files->count(), 1);
        files->setFocus();
        QTest::keyClick(files, Qt::Key_Return);
        QTRY_COMPARE(workbench.window.windowTitle(), u"one[*]"_s);
        QVERIFY(!page(workbench).isVisible());
    }

    void severalWorkbenchesShareOneList()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"store.ini"_s);
        QSettings one(file, QSettings::IniFormat);
        QSettings two(file, QSettings::IniFormat);
        RecentProjects first;
        RecentProjects second;
        first.keepIn(one);
        second.keepIn(two);
        const QDir root(QDir::rootPath()); // a drive's, where there are drives
        const QString a = root.filePath(u"a/%1, 2.json"_s);
        const QString b = root.filePath(u"b/ä & ö.json"_s);
        first.add(a);
        second.add(b);
        QCOMPARE(first.files(), QStringList({b, a}));
        for (int i = 0; i < 20; ++i)
            first.add(root.filePath(u"c/%1.json"_s.arg(i)));
        QCOMPARE(second.files().size(), 10);
        QCOMPARE(second.fileAtStart(), root.filePath(u"c/19.json"_s));
        second.setOpensLast(false);
        QCOMPARE(second.fileAtStart(), QString());
    }

    void whatIsOpenedComesBehindTheFirstPicture()
    {
        QWidget window;
        const QPointer<FirstPicture> picture(new FirstPicture(window));
        const QSignalSpy seen(picture, &FirstPicture::seen);
        window.show();
        QCOMPARE(seen.size(), 0);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(seen.size(), 1);
        QTRY_VERIFY(!picture);
    }

    // Nobody paints it.
    void aWindowThatStartsMinimisedHasItsProjectToo()
    {
        QWidget window;
        const QPointer<FirstPicture> picture(new FirstPicture(window));
        const QSignalSpy seen(picture, &FirstPicture::seen);
        window.showMinimized();
        QTRY_COMPARE(seen.size(), 1);
    }

    void nothingComesBehindAWindowThatIsGone()
    {
        QWidget window;
        const QPointer<FirstPicture> picture(new FirstPicture(window));
        const QSignalSpy seen(picture, &FirstPicture::seen);
        QPaintEvent painted(window.rect());
        QCoreApplication::sendEvent(&window, &painted);
        QTRY_VERIFY(!picture);
        QCOMPARE(seen.size(), 0);
    }

    void theLastProjectIsOpenedAtTheStart()
    {
        WorkbenchWindow workbench("x");
        const QString sample = workbench.writeProject(u"sample"_s, "y");
        const auto started = [&](QString &told) {
            QSettings store(workbench.folder.filePath(u"store.ini"_s), QSettings::IniFormat);
            MainWindow window(workbench.languages);
            window.recentProjects().keepIn(store);
            window.openAtStart(sample);
            told = window.statusBar()->currentMessage();
            return window.windowTitle();
        };
        QString told;
        QCOMPARE(started(told), u"sample[*]"_s);
        QCOMPARE(told, QString());
        {
            QSettings store(workbench.folder.filePath(u"store.ini"_s), QSettings::IniFormat);
            RecentProjects recent;
            recent.keepIn(store);
            recent.add(workbench.writeProject(u"two"_s, "z"));
        }
        QCOMPARE(started(told), u"two[*]"_s);
        QCOMPARE(told, u"The project of the last time is open again."_s);
    }
};

ORVT_TEST(ProjectLifeTest)
#include "ProjectLifeTest.moc"
