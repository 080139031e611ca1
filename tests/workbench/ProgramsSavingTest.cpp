// What is asked, saved and kept for recovery of several programs.

#include "TwoPrograms.h"

#include "project/RecoveryFile.h"
#include "support/TestProgram.h"
#include "workbench/saving/RecoveryKeeper.h"

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ProgramsSavingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

ORVT_TEST(ProgramsSavingTest)
#include "ProgramsSavingTest.moc"
