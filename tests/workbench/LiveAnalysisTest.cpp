#include "WorkbenchTest.h"

#include "support/RandomText.h"
#include "support/TestProgram.h"
#include "workbench/LiveAnalysis.h"
#include <ORVTListview/CodeView.h>

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class LiveAnalysisTest : public WidgetTest
{
    Q_OBJECT

private:
    // "1:7+4 tmep is not known"
    static QString problems(WorkbenchWindow &workbench)
    {
        QStringList texts;
        for (const Problem &problem : workbench.code().codeView()->problems())
            texts.append(u"%1:%2+%3 %4"_s.arg(problem.line)
                             .arg(problem.from)
                             .arg(problem.length)
                             .arg(problem.text));
        return texts.join(u'|');
    }

    static bool isAnalysedAsIfAnew(WorkbenchWindow &workbench)
    {
        auto &live = *workbench.window.findChild<LiveAnalysis *>();
        const QList<ProgramProblem> found = live.finished().problems();
        const RichTextBox &box = workbench.box();
        ProgramAnalysis anew([&box](qint32 line) { return box.lineText(line); });
        anew.setWords(live.words());
        anew.reset(box.lineCount());
        anew.finish();
        return anew.problems() == found;
    }

    // Puts something in the place of a piece of the text, as pasting and dragging do.
    static void editAnywhere(WorkbenchWindow &workbench, RandomText &random)
    {
        static const QStringList pieces{
            u"IF Temp1 > 3\n"_s, u"ENDIF\n"_s, u"Fan1 = tmep"_s, u"\n"_s,
            u"ELSE\n"_s,         u"x=1 "_s,    u" ) "_s,         u"\n\n"_s};
        QTextCursor cursor(workbench.box().document());
        const int length = workbench.box().TextLength();
        const int from = random.number(std::max(1, length - workbench.box().lineCount()));
        cursor.setPosition(from);
        cursor.setPosition(
            std::min(workbench.box().document()->characterCount() - 1, from + random.number(40)),
            QTextCursor::KeepAnchor);
        QString text;
        for (int i = random.number(6); i > 0; --i)
            text += pieces[random.number(static_cast<int>(pieces.size()))];
        cursor.insertText(text);
    }

private Q_SLOTS:
    void problemsComeAndGoWithTheText()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.key(Qt::Key_End);
        workbench.type(u" + tmep"_s);
        QTRY_COMPARE(problems(workbench), u"1:12+4 tmep is not known"_s);
        QVERIFY(!workbench.results().isVisible()); // unasked
        QVERIFY(workbench.box().hasFocus());
        QCOMPARE(workbench.box().SelStart(), 16);
        for (int i = 0; i < 7; ++i)
            workbench.key(Qt::Key_Backspace);
        QTRY_COMPARE(problems(workbench), QString());
    }

    void nothingComesWhileKeysDo()
    {
        WorkbenchWindow workbench;
        workbench.type(u"Fan1=3"_s);
        QCOMPARE(problems(workbench), QString());
        QTRY_COMPARE(problems(workbench), u"1:0+6 Blanks are missing in Fan1=3"_s);
    }

    void whatIsOpenedAndWhatIsUndoneIsAnalysed()
    {
        WorkbenchWindow workbench("Temp1 = 3");
        QTRY_COMPARE(problems(workbench), u"1:0+5 Temp1 is an input, which no program can set"_s);
        workbench.key(Qt::Key_End);
        workbench.type(u" 4 "_s);
        QTRY_COMPARE(workbench.code().codeView()->problems().size(), 2);
        while (workbench.code().IsUndoAvailable())
            workbench.key(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(problems(workbench), u"1:0+5 Temp1 is an input, which no program can set"_s);
        workbench.window.openProject(workbench.writeProject(u"two"_s, "CLEAR Temp1"));
        QTRY_COMPARE(problems(workbench), u"1:6+5 Temp1 is no network variable input"_s);
    }

    void aNewNameIsKnownAtOnce()
    {
        WorkbenchWindow workbench("Fan1 = Temp9");
        QTRY_COMPARE(problems(workbench), u"1:7+5 Temp9 is not known"_s);
        workbench.window.showType(dsInput);
        workbench.shown().setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        workbench.choose(u"Rename"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"Temp9"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(problems(workbench), QString());
    }

    void theListFollowsTheText()
    {
        WorkbenchWindow workbench("Fan1 = ON\nFan1 = tmep\nFan1 = tmep2");
        workbench.key(Qt::Key_F6);
        QCOMPARE(workbench.resultTexts(),
                 u"Line 2: tmep is not known|Line 3: tmep2 is not known"_s);
        workbench.results().setCurrentIndex(workbench.results().model()->index(1, 0));
        workbench.key(Qt::Key_End);
        workbench.key(Qt::Key_Return);
        QCOMPARE(workbench.resultTexts(), // before the analysis
                 u"Line 3: tmep is not known|Line 4: tmep2 is not known"_s);
        workbench.type(u"tmep3"_s);
        QTRY_COMPARE(workbench.resultTexts(),
                     u"Line 2: tmep3 is not known|Line 3: tmep is not known|"
                     "Line 4: tmep2 is not known"_s);
        QCOMPARE(workbench.results().currentIndex().data().toString(), // the same problem
                 u"Line 4: tmep2 is not known"_s);
        QVERIFY(workbench.box().hasFocus());
    }

    void whatIsClosedFollowsTheText()
    {
        WorkbenchWindow workbench("Fan1 = ON\nFan1 = tmep");
        workbench.key(Qt::Key_F6);
        workbench.choose(u"Results"_s);
        workbench.key(Qt::Key_End);
        workbench.key(Qt::Key_Return);
        workbench.choose(u"Results"_s);
        QCOMPARE(workbench.resultTexts(), u"Line 3: tmep is not known"_s);
        workbench.choose(u"Results"_s);
        workbench.type(u"tmep3"_s);
        QTRY_COMPARE(workbench.resultTexts(),
                     u"Line 2: tmep3 is not known|Line 3: tmep is not known"_s);
        workbench.window.openProject(workbench.writeProject(u"two"_s, "Fan1 = ON"));
        workbench.choose(u"Results"_s);
        QCOMPARE(workbench.resultTexts(), u"Nothing found."_s);
    }

    void anotherAppearanceMovesNoLine()
    {
        WorkbenchWindow workbench("Fan1 = ON\nFan1 = OFF\nFan1 = ON");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        const QString listed = workbench.resultTexts();
        Settings settings = workbench.window.settings();
        settings.look.colours = ColourSet::Dark;
        settings.look.fontSize = 17;
        workbench.window.setSettings(settings);
        QCOMPARE(workbench.resultTexts(), listed);
    }

    void aTextThatIsSetAnewMovesNoLine()
    {
        WorkbenchWindow workbench("Fan1 = ON\nFan1 = OFF\nFan1 = ON");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        const QString listed = workbench.resultTexts();
        workbench.code().setCodeText(u"Fan1 = OFF\r\nFan1 = ON\r\nFan1 = OFF"_s);
        QCOMPARE(workbench.resultTexts(), listed);
    }

    void linesThatAreGoneCountAsTheFirst()
    {
        WorkbenchWindow workbench("Fan1 = ON\nREM\nFan1 = 2\nFan1 = 3\nFan1 = 4\nFan1 = 5");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        workbench.box().setSelStart(workbench.box().lineStart(1));
        workbench.box().setSelLength(workbench.box().lineStart(4) - workbench.box().SelStart());
        workbench.key(Qt::Key_Delete);
        QCOMPARE(workbench.resultTexts(),
                 u"1 Fan1 = ON Assignment|2 Fan1 = 2 Assignment|2 Fan1 = 3 Assignment|"
                 "2 Fan1 = 4 Assignment|3 Fan1 = 5 Assignment"_s);
    }

    void theListOfStatementsStaysUntilTheProgramIsEdited()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        workbench.key(Qt::Key_End);
        QTest::qWait(400); // an analysis would have come
        QCOMPARE(workbench.resultTexts(), u"1 Fan1 = ON Assignment"_s);
        workbench.type(u" tmep"_s);
        QTRY_COMPARE(workbench.code().codeView()->problems().size(), 2);
        QVERIFY(workbench.resultTexts().startsWith(u"Line 1: tmep is not known"_s));
    }

    void f8WalksThroughTheProblems()
    {
        WorkbenchWindow workbench("Fan1 = tmep\nIF Temp1 = 3\nENDIF");
        QTRY_COMPARE(workbench.code().codeView()->problems().size(), 2);
        workbench.key(Qt::Key_F8);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 1, Col: 8"_s));
        workbench.key(Qt::Key_F8);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 2, Col: 10"_s));
        workbench.key(Qt::Key_F8, Qt::ShiftModifier);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 1, Col: 8"_s));
    }

    void problemsSpeakTheLanguageOfTheWindow()
    {
        WorkbenchWindow workbench("Fan1 = tmep");
        QTRY_COMPARE(problems(workbench), u"1:7+4 tmep is not known"_s);
        workbench.speak(QLocale(QLocale::German));
        QCOMPARE(problems(workbench), u"1:7+4 tmep ist nicht bekannt"_s);
        workbench.speak(QLocale(QLocale::English));
        QCOMPARE(problems(workbench), u"1:7+4 tmep is not known"_s);
    }

    void problemsAreThoseOfTheProgramWhateverChanges()
    {
        WorkbenchWindow workbench("IF Temp1 > 3\n  Fan1 = ON\nENDIF\n");
        RandomText random;
        for (int i = randomSteps(400); i > 0; --i) {
            if (workbench.box().lineCount() > 60)
                workbench.code().setCodeText(u"Fan1 = tmep\r\nENDIF"_s);
            else if (random.number(5) == 0)
                workbench.key(Qt::Key_Z, Qt::ControlModifier);
            else
                editAnywhere(workbench, random);
            if (random.number(3) > 0)
                continue;
            QVERIFY2(isAnalysedAsIfAnew(workbench), random.seed().c_str());
        }
    }

    // The same problems are not shown anew, so that nothing flickers or is told twice.
    void whatIsShownStays()
    {
        WorkbenchWindow workbench("Fan1 = tmep\n");
        workbench.key(Qt::Key_F6);
        QSignalSpy resets(workbench.results().model(), &QAbstractItemModel::modelReset);
        workbench.key(Qt::Key_End, Qt::ControlModifier);
        workbench.type(u"Fan1 = 3"_s);
        QTest::qWait(0);
        workbench.key(Qt::Key_F6);
        QCOMPARE(resets.size(), 0);
        QCOMPARE(workbench.resultTexts(), u"Line 1: tmep is not known"_s);
    }
};

ORVT_TEST(LiveAnalysisTest)
#include "LiveAnalysisTest.moc"
