// Several programs in one project: added, renamed and removed, each with its own undo, and
// steps that reach all of them.

#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/EditorViewMenu.h"
#include "workbench/settings/Settings.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QFile>
#include <QtWidgets/QTabBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ProgramsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachHasAnEditorWithItsName()
    {
        TwoPrograms two;
        QCOMPARE(two.text(1), u"Fan1 = Temp1\r\n"_s);
        QCOMPARE(two.text(2), u"REM second\r\nFan1 = Temp1 + 1\r\n"_s);
        QCOMPARE(two.programs().dock(1).windowTitle(), u"a.prog"_s);
        QCOMPARE(two.programs().dock(2).windowTitle(), u"Night"_s);
        QVERIFY(!two.programs().dock(2).isHidden());
        QTRY_VERIFY(two.programs().view(1).RTextBox()->hasFocus());
        QVERIFY(two.command(u"Next Tab"_s)->isEnabled());
        two.choose(u"Next Tab"_s);
        QTRY_VERIFY(two.programs().view(2).RTextBox()->hasFocus());
        QVERIFY(two.statusTexts().contains(u"b.prog, lines: 3"_s));
        QVERIFY(!two.window.isWindowModified());
    }

    void aClickOnTheTabGoesThere()
    {
        TwoPrograms two;
        QTabBar *tabs = nullptr;
        const auto isTheirs = [&tabs, &two] {
            for (QTabBar *bar : two.views().workplace().findChildren<QTabBar *>())
                tabs = bar->count() == 2 ? bar : tabs;
            return tabs && tabs->isVisible();
        };
        QTRY_VERIFY(isTheirs());
        QTest::qWait(0);
        two.programs().view(1).RTextBox()->setSelStart(5);
        const int night = tabs->tabText(1) == u"Night"_s ? 1 : 0;
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(night).center());
        QTRY_COMPARE(two.programs().current(), 2);
        QTRY_VERIFY(two.programs().view(2).RTextBox()->hasFocus());
        QVERIFY2(two.statusTexts().contains(u"Row: 1, Col: 1"_s), qPrintable(two.statusTexts()));
    }

    void undoBelongsToTheProgramInWhichOneTyped()
    {
        TwoPrograms two;
        two.type(1, u"1 "_s);
        two.type(2, u"2 "_s);
        two.undo(1);
        two.undo(1);
        QCOMPARE(two.text(1), u"Fan1 = Temp1\r\n"_s);
        QVERIFY(two.text(2).startsWith(u"2 "_s));
        two.undo(2);
        two.undo(2);
        QVERIFY(two.text(2).startsWith(u"REM second"_s));
        QVERIFY(!two.window.isWindowModified());
    }

    void onlyWhatChangedIsSaved()
    {
        TwoPrograms two("A\tB = 1\r\n", "C\t= 2\n");
        const QByteArray project = two.bytes(u"two.json"_s);
        two.type(2, u"REM x "_s);
        QVERIFY(two.window.isWindowModified());
        two.choose(u"Save"_s);
        QVERIFY(!two.window.isWindowModified());
        QCOMPARE(two.bytes(u"a.prog"_s), "A\tB = 1\r\n");
        QCOMPARE(two.bytes(u"b.prog"_s), "REM x C\t= 2\n");
        QCOMPARE(two.bytes(u"two.json"_s), project);
    }

    void oneIsAddedUndoneAndMadeAgain()
    {
        WorkbenchWindow one("Fan1 = Temp1\n");
        const QByteArray before = readFile(one.folder.filePath(u"one.json"_s));
        NextDialog<QInputDialog> dialog([](QInputDialog &asked) {
            asked.setTextValue(u"Night"_s);
            asked.accept();
        });
        one.choose(u"Add Program…"_s);
        ProgramViews &programs = one.views().programs();
        QCOMPARE(programs.current(), 2);
        RichTextBox &box = *programs.view(2).RTextBox();
        QVERIFY(one.window.focusWidget() == &box);
        QVERIFY(one.window.isWindowModified());
        QTest::keyClicks(&box, u"REM n "_s);
        for (int i = 0; i < 4 && !programs.dock(2).isHidden(); ++i)
            QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(programs.dock(2).isHidden());
        QVERIFY(one.window.focusWidget() == &one.box());
        QVERIFY(!one.window.isWindowModified());
        one.key(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(!programs.dock(2).isHidden());
        one.choose(u"Save"_s);
        QVERIFY(QFile::exists(one.folder.filePath(u"Night.prog"_s)));
        QVERIFY(readFile(one.folder.filePath(u"one.json"_s)) != before);
        QCOMPARE(one.saved(), "Fan1 = Temp1\n");
    }

    // What was typed in it would vanish unseen, and nothing would be left to save.
    void oneThatHasATextIsNotTakenBackFromAnother()
    {
        WorkbenchWindow one("Fan1 = Temp1\n");
        NextDialog<QInputDialog> dialog([](QInputDialog &asked) {
            asked.setTextValue(u"Night"_s);
            asked.accept();
        });
        one.choose(u"Add Program…"_s);
        ProgramViews &programs = one.views().programs();
        QTest::keyClicks(programs.view(2).RTextBox(), u"REM n "_s);
        one.views().enterProgram(1);
        one.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!programs.dock(2).isHidden());
        QVERIFY(programs.view(2).CodeText().startsWith(u"REM n"_s));
        QVERIFY(one.window.isWindowModified());
        QVERIFY(one.window.statusBar()->currentMessage().contains(u"Night"_s));
    }

    void theFunctionsOfTheControllerStayKnown()
    {
        WorkbenchWindow one("Fan1 = SQRT ( Temp1 )\n");
        const QString project = one.folder.filePath(u"one.json"_s);
        writeFile(project, readFile(project).replace(
                               "\"inputs\"", "\"controller\": {\"sqrt\": true}, \"inputs\""));
        one.window.openProject(project);
        NextDialog<QInputDialog> dialog([](QInputDialog &asked) {
            asked.setTextValue(u"Night"_s);
            asked.accept();
        });
        one.choose(u"Add Program…"_s);
        one.choose(u"Analyse"_s);
        QCOMPARE(one.resultTexts(), u"Nothing found."_s);
    }

    void oneIsRenamed()
    {
        TwoPrograms two;
        two.views().enterProgram(2);
        two.give(u"Rename Program…"_s, u"Weekend"_s);
        QCOMPARE(two.names(), QStringList({u"a.prog"_s, u"Weekend"_s}));
        QCOMPARE(two.programs().dock(2).windowTitle(), u"Weekend"_s);
        two.undo(2);
        QCOMPARE(two.names(), QStringList({u"a.prog"_s, u"Night"_s}));
        QCOMPARE(two.programs().dock(2).windowTitle(), u"Night"_s);
        QVERIFY(!two.window.isWindowModified());
    }

    void oneIsRemovedAndComesBackWithWhatWasTyped()
    {
        TwoPrograms two;
        two.type(2, u"REM x "_s);
        const QString typed = two.text(2);
        const NextMessage question(QMessageBox::Yes);
        two.choose(u"Remove Program…"_s);
        QCOMPARE(two.names(), QStringList(u"a.prog"_s));
        QVERIFY(two.programs().dock(2).isHidden());
        QVERIFY(two.window.focusWidget() == two.programs().view(1).RTextBox());
        two.choose(u"Save"_s);
        QVERIFY(two.bytes(u"b.prog"_s).startsWith("REM second")); // its file stays
        two.undo(1);
        QVERIFY(!two.programs().dock(2).isHidden());
        QCOMPARE(two.text(2), typed);
        two.choose(u"Save"_s);
        QVERIFY(two.bytes(u"b.prog"_s).startsWith("REM x"));
    }

    void oneThatComesBackLooksLikeTheOthers()
    {
        TwoPrograms two;
        two.views().enterProgram(2);
        const NextMessage question(QMessageBox::Yes);
        two.choose(u"Remove Program…"_s);
        Settings settings = two.window.settings();
        settings.look.fontSize = 23;
        two.window.setSettings(settings);
        for (QAction *action : two.window.findChild<EditorViewMenu *>()->actions()) {
            if (action->text().remove(u'&') == u"Line Numbers"_s)
                action->setChecked(false);
        }
        two.undo(1);
        const ORVListView &back = two.programs().view(2);
        QVERIFY(!two.programs().dock(2).isHidden());
        QVERIFY(!back.codeView()->lineNumbersVisible());
        QCOMPARE(back.RTextBox()->font(), two.programs().view(1).RTextBox()->font());
    }

    // Also where one knows of the list what the file says no more.
    void oneThatSomebodyElseAddsIsTakenOver()
    {
        TwoPrograms two;
        two.window.showType(dsInput);
        renameTemp1(two);
        writeFile(two.folder.filePath(u"c.prog"_s), "REM theirs\n");
        writeFile(
            two.project(),
            two.bytes(u"two.json"_s).replace("b.prog\"}]", "b.prog\"}, {\"file\": \"c.prog\"}]"));
        const NextMessage question(QMessageBox::Yes);
        two.choose(u"Save"_s);
        QCOMPARE(two.names(), QStringList({u"a.prog"_s, u"Night"_s, u"c.prog"_s}));
        QCOMPARE(two.text(3), u"REM theirs\r\n"_s);
        QVERIFY(!two.window.isWindowModified());
        two.type(3, u"REM ours "_s);
        two.give(u"Add Program…"_s, u"D"_s);
        two.choose(u"Save"_s);
        QVERIFY(!two.window.isWindowModified());
        QCOMPARE(two.bytes(u"c.prog"_s), "REM ours REM theirs\n");
        QCOMPARE(Project(two.project()).programs().size(), 4);
    }

    // The steps before know the name that it had then.
    void theNameOfAnotherPlaceStaysWithUndo()
    {
        TwoPrograms two;
        two.window.showType(dsInput);
        renameTemp1(two);
        two.document().saveAt(two.folder.filePath(u"copy.json"_s), Project::Encoding::ItsOwn);
        QCOMPARE(two.names(), QStringList({u"copy.prog"_s, u"Night"_s}));
        two.undo(1);
        QCOMPARE(two.text(1), u"Fan1 = Temp1\r\n"_s);
        QCOMPARE(two.names(), QStringList({u"copy.prog"_s, u"Night"_s}));
    }

    void aPointIsRenamedInAllAsOneStep()
    {
        TwoPrograms two;
        two.window.showType(dsInput);
        renameTemp1(two);
        QCOMPARE(two.text(1), u"Fan1 = Supply\r\n"_s);
        QCOMPARE(two.text(2), u"REM second\r\nFan1 = Supply + 1\r\n"_s);
        two.views().enterProgram(1);
        two.undo(1);
        QCOMPARE(two.text(1), u"Fan1 = Temp1\r\n"_s);
        QCOMPARE(two.text(2), u"REM second\r\nFan1 = Temp1 + 1\r\n"_s);
        QCOMPARE(two.document().project()->rows(dsInput).at(0).name, u"Temp1"_s);
        QVERIFY(!two.window.isWindowModified());
    }

    // What was typed in another program since is not thrown away unseen.
    void aStepWaitsForWhatWasTypedElsewhere()
    {
        TwoPrograms two;
        two.window.showType(dsInput);
        renameTemp1(two);
        two.type(2, u"7 "_s);
        two.views().enterProgram(1);
        two.undo(1);
        QCOMPARE(two.text(1), u"Fan1 = Supply\r\n"_s);
        QVERIFY(two.window.statusBar()->currentMessage().contains(u"Night"_s));
        two.views().enterProgram(2);
        two.undo(2);
        two.undo(2);
        two.views().enterProgram(1);
        two.undo(1);
        QCOMPARE(two.text(1), u"Fan1 = Temp1\r\n"_s);
        QVERIFY(two.text(2).contains(u"Temp1"_s));
    }

    void allAreShownEquallyLarge()
    {
        TwoPrograms two;
        two.programs().view(2).codeView()->setZoom(150);
        QCOMPARE(two.programs().view(1).codeView()->zoom(), 150);
        two.give(u"Add Program…"_s, u"C"_s);
        QCOMPARE(two.programs().view(3).codeView()->zoom(), 150);
    }

    // Whatever closes its window.
    void theWindowOfAProgramGoesBack()
    {
        TwoPrograms two;
        two.views().enterProgram(2);
        two.choose(u"Own Window"_s);
        ViewDock &dock = two.programs().dock(2);
        QVERIFY(dock.isFloating());
        QVERIFY(!dock.close());
        QTRY_VERIFY(!dock.isFloating());
        QVERIFY(dock.isVisible());
        QVERIFY(two.views().workplace().isAncestorOf(&dock));
        QTRY_VERIFY(two.programs().view(2).RTextBox()->hasFocus());
    }

    void anotherProjectHasItsOwn()
    {
        TwoPrograms two;
        two.type(2, u"REM x "_s);
        two.window.openProject(two.writeProject(u"one"_s, "A = 1\n"));
        QVERIFY(two.programs().dock(2).isHidden());
        QCOMPARE(two.programs().dock(1).windowTitle(), u"one.prog"_s);
        two.window.openProject(two.project());
        QCOMPARE(two.text(2), u"REM second\r\nFan1 = Temp1 + 1\r\n"_s);
        two.views().enterProgram(2);
        two.undo(2);
        QCOMPARE(two.text(2), u"REM second\r\nFan1 = Temp1 + 1\r\n"_s);
        two.window.closeProject();
        QVERIFY(two.programs().dock(2).isHidden());
        QVERIFY(!two.programs().dock(1).isHidden());
    }

    void theLastOneCannotBeRemoved()
    {
        WorkbenchWindow one;
        QMenu *menu = nullptr;
        for (QMenu *each : one.menus()) {
            if (each->actions().contains(one.command(u"Remove Program…"_s)))
                menu = each;
        }
        Q_EMIT menu->aboutToShow();
        QVERIFY(!one.command(u"Remove Program…"_s)->isEnabled());
        one.choose(u"Remove Program…"_s); // no dialog waits
        QCOMPARE(one.views().programs().list().size(), 1);
    }

private:
    static void renameTemp1(TwoPrograms &two)
    {
        NextDialog<QDialog> places([](QDialog &dialog) { dialog.accept(); });
        Q_EMIT two.views().tables().renameWanted(dsInput, 0, u"Supply"_s);
    }
};

ORVT_TEST(ProgramsTest)
#include "ProgramsTest.moc"
