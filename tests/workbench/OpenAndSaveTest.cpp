#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "widgets/box/LateColours.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/Error.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolButton>

#include <chrono>

using namespace Qt::StringLiterals;

class OpenAndSaveTest : public WidgetTest
{
    Q_OBJECT

private:
    // Chooses "Open Project…" and the file in the dialog that follows.
    static void openByMenu(WorkbenchWindow &workbench, const QString &project)
    {
        NextDialog<QFileDialog> dialog([&](QFileDialog &files) {
            files.selectFile(project);
            QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
        });
        workbench.choose(u"Open Project…"_s);
        QVERIFY(dialog.wasThere());
    }

private Q_SLOTS:
    void showsTheProgramColoured()
    {
        WorkbenchWindow workbench("if temp1 > 20\nfan1 = on\nENDIF");
        QCOMPARE(workbench.code().CodeText(), u"IF Temp1 > 20\r\nFan1 = ON\r\nENDIF"_s);
        QVERIFY(workbench.code().CodeTextRTF().contains(u"\\cf"_s));
        QCOMPARE(workbench.window.windowTitle(), u"one[*]"_s);
        QVERIFY(!workbench.window.isWindowModified());
        QCOMPARE(workbench.statusTexts(), u"one.prog, lines: 3|Row: 1, Col: 1"_s);
    }

    void raisesWhatIsWrongWithAProject()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QVERIFY_THROWS_EXCEPTION(
            ORVTListview::Error,
            workbench.window.openProject(workbench.folder.filePath(u"missing.json"_s)));
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
    }

    void tellsWhatIsWrongWithAChosenProject()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        ORVTListview::writeFile(workbench.folder.filePath(u"bad.json"_s), "{");
        NextDialog<QFileDialog> dialog([&](QFileDialog &files) {
            files.selectFile(workbench.folder.filePath(u"bad.json"_s));
            QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
        });
        NextMessage message(QMessageBox::Ok);
        workbench.choose(u"Open Project…"_s);
        QVERIFY(message.wasThere());
        QVERIFY2(message.text().contains(u"bad.json"_s), qPrintable(message.text()));
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
    }

    void keepsTheLineEndsOfTheFile()
    {
        for (const QByteArray &lineEnd : {QByteArray("\n"), QByteArray("\r\n")}) {
            renewState();
            WorkbenchWindow workbench("Fan1 = ON" + lineEnd + "\xC2\xB0" + lineEnd);
            workbench.type(u"REM "_s);
            workbench.key(Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(workbench.saved(), "REM Fan1 = ON" + lineEnd + "\xC2\xB0" + lineEnd);
        }
    }

    void marksUnsavedChanges()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        QVERIFY(workbench.window.isWindowModified());
        workbench.key(Qt::Key_Backspace);
        QVERIFY(!workbench.window.isWindowModified());
        workbench.type(u"x"_s);
        workbench.choose(u"Save"_s);
        QVERIFY(!workbench.window.isWindowModified());
        workbench.key(Qt::Key_Backspace);
        QVERIFY(workbench.window.isWindowModified());
    }

    // A change that keeps the length is one too.
    void marksAChangedLetter()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.key(Qt::Key_Right, Qt::ShiftModifier);
        workbench.type(u"P"_s);
        QVERIFY(workbench.window.isWindowModified());
    }

    void tellsWhenItCannotSave()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QVERIFY(QFile::remove(workbench.folder.filePath(u"one.prog"_s)));
        QVERIFY(QDir(workbench.folder.path()).mkdir(u"one.prog"_s));
        workbench.type(u"x"_s);
        NextMessage message(QMessageBox::Cancel);
        workbench.choose(u"Save"_s);
        QVERIFY(message.wasThere());
        QVERIFY2(message.text().contains(u"one.prog: "_s), qPrintable(message.text()));
        QVERIFY(workbench.window.isWindowModified());
        QCOMPARE(workbench.code().CodeText(), u"xFan1 = ON"_s);
    }

    void asksBeforeItOverwritesWhatAnotherWrote()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        ORVTListview::writeFile(workbench.folder.filePath(u"one.prog"_s), "theirs");
        workbench.type(u"x"_s);
        NextMessage keep(QMessageBox::No);
        workbench.choose(u"Save"_s);
        QVERIFY(keep.wasThere());
        QVERIFY2(keep.text().contains(u"one.prog"_s), qPrintable(keep.text()));
        QCOMPARE(workbench.saved(), "theirs");
        QVERIFY(workbench.window.isWindowModified());

        NextMessage overwrite(QMessageBox::Yes);
        workbench.choose(u"Save"_s);
        QVERIFY(overwrite.wasThere());
        QCOMPARE(workbench.saved(), "xFan1 = ON");
        QVERIFY(!workbench.window.isWindowModified());
        workbench.type(u"y"_s);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), "xyFan1 = ON");
    }

    void closesWithoutAQuestionWhenNothingIsUnsaved()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        workbench.key(Qt::Key_Backspace);
        QVERIFY(workbench.window.close());
    }

    void asksBeforeItCloses_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<QByteArray>("saved");
        QTest::newRow("save") << int(QMessageBox::Save) << true << QByteArray("xFan1 = ON");
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << QByteArray("Fan1 = ON");
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << QByteArray("Fan1 = ON");
    }
    void asksBeforeItCloses()
    {
        QFETCH(int, answer);
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        NextMessage message{QMessageBox::StandardButton(answer)};
        QTEST(workbench.window.close(), "closes");
        QVERIFY(message.wasThere());
        QVERIFY2(message.text().contains(u"one.prog"_s), qPrintable(message.text()));
        QTEST(workbench.saved(), "saved");
    }

    void staysOpenWhenItCannotSave()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QVERIFY(QFile::remove(workbench.folder.filePath(u"one.prog"_s)));
        QVERIFY(QDir(workbench.folder.path()).mkdir(u"one.prog"_s));
        workbench.type(u"x"_s);
        std::unique_ptr<NextMessage> failure;
        NextDialog<QMessageBox> question([&](QMessageBox &box) {
            failure = std::make_unique<NextMessage>(QMessageBox::Cancel);
            box.button(QMessageBox::Save)->click();
        });
        QVERIFY(!workbench.window.close());
        QVERIFY(failure && failure->wasThere());
        QCOMPARE(workbench.code().CodeText(), u"xFan1 = ON"_s);
    }

    void asksBeforeItOpensAnotherProject()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        const QString other = workbench.writeProject(u"two"_s, "Temp1 > 3");
        workbench.type(u"x"_s);
        NextMessage stay(QMessageBox::Cancel);
        openByMenu(workbench, other);
        QVERIFY(stay.wasThere());
        QCOMPARE(workbench.code().CodeText(), u"xFan1 = ON"_s);

        NextMessage save(QMessageBox::Save);
        openByMenu(workbench, other);
        QVERIFY(save.wasThere());
        QCOMPARE(workbench.saved(), "xFan1 = ON");
        QCOMPARE(workbench.code().CodeText(), u"Temp1 > 3"_s);
        QCOMPARE(workbench.window.windowTitle(), u"two[*]"_s);
        QVERIFY(!workbench.window.isWindowModified());
    }

    void savesIntoTheFileOfTheProjectThatIsShown()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.window.openProject(workbench.writeProject(u"two"_s, "Temp1 > 3\r\n"));
        workbench.type(u"x"_s);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(u"one"_s), "Fan1 = ON");
        QCOMPARE(workbench.saved(u"two"_s), "xTemp1 > 3\r\n");
    }

    void anotherProjectHasAnUndoHistoryOfItsOwn()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"a b c"_s);
        QVERIFY(workbench.code().IsUndoAvailable());
        workbench.window.openProject(workbench.writeProject(u"two"_s, "Temp1 > 3"));
        QVERIFY(!workbench.code().IsUndoAvailable());
        QVERIFY(!workbench.code().IsRedoAvailable());
        QVERIFY(!workbench.code().restoreUnsavedText());
        QCOMPARE(workbench.code().CodeText(), u"Temp1 > 3"_s);
    }

    void undoEndsAtTheProgramAsItWasOpened()
    {
        WorkbenchWindow workbench("fan1 = on");
        workbench.type(u"a b "_s);
        workbench.key(Qt::Key_Z, Qt::ControlModifier);
        workbench.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!workbench.code().IsUndoAvailable());
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
        QVERIFY(!workbench.window.isWindowModified());
    }

    void opensProgramsWithCharactersOfRtf()
    {
        const QByteArray program = "Fan1 = {Temp1}\nC:\\path\nREM \\par } {";
        WorkbenchWindow workbench(program);
        QCOMPARE(workbench.code().CodeText(),
                 QString::fromUtf8(program).replace(u"\n"_s, u"\r\n"_s));
        workbench.type(u"x"_s);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), "x" + program);
    }

    void followsThePaletteWithoutLosingThePlace()
    {
        WorkbenchWindow workbench("Fan1 = ON\nTemp1 > 3");
        workbench.box().setSelStart(3);
        workbench.box().setSelLength(10);
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::Text, Qt::white);
        workbench.window.setPalette(palette);
        QCOMPARE(workbench.box().SelStart(), 3);
        QCOMPARE(workbench.box().SelLength(), 10);
        QVERIFY(!workbench.window.isWindowModified());
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON\r\nTemp1 > 3"_s);
    }

    void showsANameWithMarksAsItIs()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.window.openProject(workbench.writeProject(u"two%2%1"_s, "Temp1 > 3"));
        QCOMPARE(workbench.statusTexts(), u"two%2%1.prog, lines: 1|Row: 1, Col: 1"_s);
    }

    void showsHowFarALongProgramHasItsColours()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        const ORVTListview::CodeView &view = *workbench.code().codeView();
        auto &bar = *workbench.window.statusBar()->findChild<QProgressBar *>();
        auto &cancel = *bar.parentWidget()->findChild<QToolButton *>();
        auto &colours = ORVTListview::LateColours::of(*workbench.box().document());
        colours.setClock([now = ORVTListview::LateColours::Time()]() mutable {
            return now += std::chrono::milliseconds(1); // a few lines at once
        });
        const QByteArray program = QByteArray("IF Temp1 > 3\r\n").repeated(8000);
        const QString project = workbench.writeProject(u"two"_s, program);
        workbench.window.openProject(project);
        QVERIFY(!bar.isVisible());
        QTRY_VERIFY(bar.isVisible());
        QVERIFY(view.isOpening());
        QCOMPARE(bar.accessibleName(), u"Colouring the program"_s);
        workbench.speak(QLocale::German);
        QCOMPARE(bar.accessibleName(), u"Programm wird eingefärbt"_s);
        QTest::mouseClick(&cancel, Qt::LeftButton);
        QVERIFY(!view.isOpening());
        QTRY_VERIFY(!bar.isVisible());
        QVERIFY(workbench.box().hasFocus());
        QVERIFY(!workbench.window.isWindowModified());
        QVERIFY(workbench.code().CodeText() == QString::fromLatin1(program));

        workbench.window.openProject(project);
        QTRY_VERIFY(bar.isVisible());
        // Waiting sleeps between the pieces of the work where the loop is Windows'.
        QTRY_VERIFY_WITH_TIMEOUT(bar.value() > 50, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(!bar.isVisible(), 30000);
        QVERIFY(!view.isOpening());
    }

    void countsLinesAndFollowsTheCaret()
    {
        WorkbenchWindow workbench("Fan1 = ON\nTemp1 > 3");
        workbench.key(Qt::Key_Return);
        QTRY_COMPARE(workbench.statusTexts(), u"one.prog, lines: 3|Row: 2, Col: 1"_s);
        const QPoint place = workbench.box().cursorRect().center() + QPoint(200, 0);
        QTest::mouseClick(workbench.box().viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(workbench.statusTexts(), u"one.prog, lines: 3|Row: 2, Col: 10"_s);
    }
};

ORVT_TEST(OpenAndSaveTest)
#include "OpenAndSaveTest.moc"
