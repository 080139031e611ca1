// What the status bar and the frame say of what is in sight.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"

#include <ORVTListview/ORVListView.h>

#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class WindowStatusTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    // Who never pauses for half a second, in which the editor tells nothing.
    void theCaretIsFollowedWhileOneTypes()
    {
        WorkbenchWindow workbench("");
        for (int letter = 0; letter < 12; ++letter) {
            workbench.type(u"x"_s);
            QTest::qWait(60);
        }
        QVERIFY2(!workbench.statusTexts().endsWith(u"Col: 1"_s),
                 qPrintable(workbench.statusTexts()));
        QTRY_VERIFY(workbench.statusTexts().endsWith(u"Col: 13"_s));
    }

    void aTableHasItsOwnName()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        QVERIFY(workbench.statusTexts().startsWith(u"one.prog, lines: 2"_s));
        workbench.window.showType(dsInput);
        QVERIFY(workbench.statusTexts().startsWith(u"Inputs|"_s)); // the position is hidden
        workbench.window.showType(dsCode);
        QVERIFY(workbench.statusTexts().startsWith(u"one.prog, lines: 2"_s));
    }

    void itSaysThatSomethingWasSaved()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        workbench.type(u"x"_s);
        QTest::keyClick(&workbench.box(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(workbench.window.statusBar()->currentMessage(), u"Saved."_s);
        QVERIFY(!workbench.window.isWindowModified());
    }

    // What is divided, or gives room to another part of the window.
    void theCaretStaysInSightWhenItsViewBecomesLow()
    {
        WorkbenchWindow workbench(QByteArray("Fan1 = Temp1\n").repeated(200));
        workbench.box().setSelStart(workbench.box().lineStart(120));
        const auto isInSight = [&box = workbench.box()] {
            return box.viewport()->rect().contains(box.cursorRect());
        };
        const auto scrollTo = [&box = workbench.box()](int line) {
            box.verticalScrollBar()->setValue(line);
            QCoreApplication::processEvents();
        };
        scrollTo(100);
        QVERIFY(isInSight());
        workbench.window.showType(dsInput);
        workbench.window.showType(dsCode);
        workbench.choose(u"Show Below"_s);
        QTRY_VERIFY(workbench.box().viewport()->height() <
                    20 * workbench.box().fontMetrics().height());
        QTRY_VERIFY(isInSight());
        scrollTo(0); // whoever looks elsewhere is not led back
        workbench.choose(u"Results"_s);
        QTest::qWait(50);
        QVERIFY(!isInSight());
    }

    // The frame adds the program's name, which is another one in each language, to a title that
    // it is given.
    void theFrameSpeaksTheLanguage()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        const QSignalSpy handedOn(workbench.window.windowHandle(), &QWindow::windowTitleChanged);
        workbench.speak(QLocale::German);
        QVERIFY(!handedOn.isEmpty());
        QCOMPARE(workbench.window.windowTitle(), u"one[*]"_s);
    }
};

ORVT_TEST(WindowStatusTest)
#include "WindowStatusTest.moc"
