// What is known of several programs together: problems, uses, places of a text.

#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"

#include <ORVTListview/CodeView.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ProgramsAnalysisTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

ORVT_TEST(ProgramsAnalysisTest)
#include "ProgramsAnalysisTest.moc"
