// Several programs in one project: added, renamed and removed, each with its own undo, and
// one analysis, renaming, saving and recovery for all.

#include "TwoPrograms.h"

#include "project/RecoveryFile.h"
#include "support/TestProgram.h"
#include "workbench/EditorViewMenu.h"
#include "workbench/saving/RecoveryKeeper.h"
#include "workbench/settings/Settings.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QFile>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTreeWidget>

#include <memory>

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

    void analysisKnowsWhatTheOtherProgramDoes()
    {
        TwoPrograms two("Var1 = Temp1\n", "Fan1 = Var1\nx = 1\n");
        two.choose(u"Analyse"_s);
        const QString found = two.resultTexts();
        QVERIFY2(!found.contains(u"Var1"_s), qPrintable(found)); // read there, written here
        QVERIFY2(found.startsWith(u"Night: Line 2"_s), qPrintable(found));
        const QModelIndex row = two.results().model()->index(0, 0);
        two.views().enterProgram(1);
        Q_EMIT two.results().clicked(row);
        QCOMPARE(two.programs().current(), 2);
        QVERIFY(two.statusTexts().contains(u"Row: 2"_s));
    }

    // F8 and Shift+F8 go through all of them, round at the ends.
    void problemsAreWalkedInAllPrograms()
    {
        TwoPrograms two("x = 1\nFan1 = Temp1\ny = 1\n", "Fan1 = 1\nz = 1\n");
        two.choose(u"Analyse"_s);
        two.views().enterProgram(1);
        const auto place = [&two] {
            const QTextCursor caret = two.code().RTextBox()->textCursor();
            return QString::number(two.programs().current()) + u' ' +
                   QString::number(caret.blockNumber() + 1);
        };
        const auto walk = [&](const QString &caption) {
            for (QAction *action : two.window.findChildren<QAction *>()) {
                if (action->text().remove(u'&') == caption)
                    action->trigger();
            }
            return place();
        };
        two.code().RTextBox()->moveCursor(QTextCursor::Start);
        QStringList places{walk(u"Next Problem"_s)};
        while (places.size() < 30 && !(places.size() > 2 && places.constLast() == places.at(0)))
            places.append(walk(u"Next Problem"_s));
        places.removeDuplicates();
        QVERIFY2(places.contains(u"1 3"_s), qPrintable(places.join(u',')));
        QVERIFY2(places.contains(u"2 2"_s), qPrintable(places.join(u',')));
        QCOMPARE(place(), places.at(0)); // round
        two.views().enterProgram(1);
        two.code().RTextBox()->moveCursor(QTextCursor::Start);
        QVERIFY2(walk(u"Previous Problem"_s).startsWith(u"2 "_s), qPrintable(place()));
    }

    void usesAreThoseOfAllPrograms()
    {
        TwoPrograms two;
        two.programs().view(1).RTextBox()->setSelStart(9);
        two.choose(u"All Uses"_s);
        const QString found = two.resultTexts();
        QVERIFY2(found.contains(u"a.prog, line 1"_s), qPrintable(found));
        QVERIFY2(found.contains(u"Night, line 2"_s), qPrintable(found));
    }

    void aTextIsFoundInAllPrograms()
    {
        TwoPrograms two("Fan1 = Temp1\n", "REM fan1, FAN1\n");
        two.give(u"Find In Programs…"_s, u"fan1"_s);
        QCOMPARE(two.resultTexts(), u"a.prog, line 1 Fan1 = Temp1|Night, line 1 REM fan1, FAN1|"
                                    "Night, line 1 REM fan1, FAN1"_s);
        Q_EMIT two.results().clicked(two.results().model()->index(2, 0));
        RichTextBox &box = *two.programs().view(2).RTextBox();
        QVERIFY(two.window.focusWidget() == &box);
        QCOMPARE(box.SelText(), u"FAN1"_s);
        two.give(u"Find In Programs…"_s, u"nowhere"_s);
        QVERIFY(two.window.statusBar()->currentMessage().contains(u"nowhere"_s));
    }

    void noWayLeadsIntoOneThatHasGone()
    {
        TwoPrograms two;
        two.give(u"Find In Programs…"_s, u"Temp1"_s);
        Q_EMIT two.results().clicked(two.results().model()->index(1, 0));
        QCOMPARE(two.programs().current(), 2);
        Q_EMIT two.results().clicked(two.results().model()->index(0, 0));
        QCOMPARE(two.programs().current(), 1);
        two.views().enterProgram(2);
        const NextMessage question(QMessageBox::Yes);
        two.choose(u"Remove Program…"_s);
        QCOMPARE(two.resultTexts(), u"Line 1 Fan1 = Temp1"_s);
        two.choose(u"Back"_s);
        QVERIFY(two.programs().dock(2).isHidden());
        QCOMPARE(two.programs().current(), 1);
    }

    void theQuestionSpeaksOfWhatIsNotSaved()
    {
        TwoPrograms two;
        two.views().enterProgram(2);
        const auto asked = [&two] {
            const NextMessage question(QMessageBox::No);
            two.choose(u"Remove Program…"_s);
            return question.text();
        };
        QVERIFY2(asked().endsWith(u"b.prog stays where it is."_s), qPrintable(asked()));
        two.type(2, u"REM x "_s);
        QVERIFY2(asked().endsWith(u"comes back only with Undo."_s), qPrintable(asked()));
    }

    void aNameIsNoMarkup()
    {
        TwoPrograms two;
        two.views().enterProgram(2);
        two.give(u"Rename Program…"_s, u"<b>x</b> & y"_s);
        std::unique_ptr<NextDialog<QInputDialog>> again;
        NextDialog<QInputDialog> first([&again](QInputDialog &asked) {
            again = std::make_unique<NextDialog<QInputDialog>>([](QInputDialog &reason) {
                const auto *label = reason.findChild<QLabel *>();
                QCOMPARE(label->textFormat(), Qt::PlainText);
                QVERIFY2(label->text().contains(u"<b>x</b> && y"_s), qPrintable(label->text()));
                reason.reject();
            });
            asked.setTextValue(u"<b>x</b> & y"_s);
            asked.accept();
        });
        two.choose(u"Add Program…"_s);
        QVERIFY(again && again->wasThere());
        const NextMessage question(QMessageBox::No);
        two.choose(u"Remove Program…"_s);
        QVERIFY2(question.text().contains(u"<b>x</b> & y"_s), qPrintable(question.text()));
    }

    void leavingNamesOneOrSeveral()
    {
        TwoPrograms two;
        const auto asked = [&two] {
            const NextMessage question(QMessageBox::Cancel);
            two.window.close();
            return question.text();
        };
        two.type(2, u"REM x "_s);
        QVERIFY2(asked().startsWith(u"The program Night has changes"_s), qPrintable(asked()));
        two.type(1, u"REM x "_s);
        QVERIFY2(asked().startsWith(u"The programs a.prog, Night have changes"_s),
                 qPrintable(asked()));
    }

    void leavingSpeaksOfTheProject()
    {
        TwoPrograms two;
        two.give(u"Add Program…"_s, u"D"_s);
        const NextMessage question(QMessageBox::Cancel);
        QVERIFY(!two.window.close());
        QVERIFY2(question.text().startsWith(u"The project two has"_s), qPrintable(question.text()));
    }

    void whatWasTypedInBothIsKeptForRecovery()
    {
        TwoPrograms two;
        two.type(1, u"REM one "_s);
        two.type(2, u"REM two "_s);
        QVERIFY(two.window.findChild<RecoveryKeeper *>()->keepNow());
        const auto kept = readRecovery(two.bytes(u"two.json.recovery.txt"_s));
        QVERIFY(kept);
        QCOMPARE(kept->programs, QStringList({two.text(1), two.text(2)}));
    }

    // Tables that make no project keep nobody from the list of the programs.
    void recoveryHasTheListOfItsTexts()
    {
        TwoPrograms two;
        const Project &project = *two.document().project();
        two.document().carryOut(ProgramList{project.programs().at(1), project.programs().at(0)});
        ProjectRow row = project.rows(dsInput).at(0);
        row.name = u" no name"_s;
        row.cells[0] = row.name;
        two.document().carryOut(RowChanges{{dsInput, 1, {}, row}});
        QVERIFY(!two.window.findChild<RecoveryKeeper *>()->keepNow());
        const auto kept = readRecovery(two.bytes(u"two.json.recovery.txt"_s));
        QVERIFY(kept);
        QCOMPARE(kept->programs, QStringList({two.text(2), two.text(1)}));
        const ProjectContents contents = readContents(JsonPlace::parse(kept->json, u"two.json"_s));
        QCOMPARE(contents.programs.at(0).name, u"Night"_s);
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
