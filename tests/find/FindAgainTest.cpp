// Searches without the dialog.

#include "find/FindFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/CodeView.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class FindAgainTest : public WidgetTest
{
    Q_OBJECT

private:
    // Searches once by the dialog, then puts the selection back.
    static void search(FindHost &host, const QString &program, const QString &wanted,
                       int option = -1)
    {
        host.open(program);
        const qint32 start = host.box().SelStart();
        host.enter(0, wanted);
        if (option >= 0)
            host.click(host.option(option));
        host.findNext();
        QTest::keyClick(&host.dialog(), Qt::Key_Escape);
        QVERIFY(!host.dialog().isVisible());
        host.box().setSelStart(start);
    }

    static CodeView &view(FindHost &host) { return *host.list->codeView(); }

private Q_SLOTS:
    void withoutASearchNothingIsFound()
    {
        FindHost host;
        host.histories().last = {};
        host.setText(u"a|b"_s);
        QVERIFY(!view(host).findNext());
        QVERIFY(!view(host).findPrevious());
        QCOMPARE(host.marked(), u"a|b"_s);
    }

    void goesOnAndRound()
    {
        FindHost host;
        search(host, u"ab |AB x ab"_s, u"ab"_s);
        QVERIFY(view(host).findNext());
        QCOMPARE(host.marked(), u"ab |AB| x ab"_s);
        QVERIFY(view(host).findNext());
        QCOMPARE(host.marked(), u"ab AB x |ab|"_s);
        QVERIFY(view(host).findNext());
        QCOMPARE(host.marked(), u"|ab| AB x ab"_s);
        QVERIFY(view(host).findPrevious());
        QCOMPARE(host.marked(), u"ab AB x |ab|"_s);
        QVERIFY(view(host).findPrevious());
        QCOMPARE(host.marked(), u"ab |AB| x ab"_s);
        QVERIFY(!host.dialog().isVisible());
    }

    void keepsTheOptions()
    {
        FindHost host;
        search(host, u"|T1 T1_A xT1 t1"_s, u"t1"_s, 0);
        QVERIFY(view(host).findNext());
        QCOMPARE(host.marked(), u"|T1| T1_A xT1 t1"_s);
        QVERIFY(view(host).findNext());
        QCOMPARE(host.marked(), u"T1 T1_A xT1 |t1|"_s);
        QVERIFY(view(host).findPrevious());
        QCOMPARE(host.marked(), u"|T1| T1_A xT1 t1"_s);
        search(host, u"|T1 t1"_s, u"t1"_s, 1);
        QVERIFY(view(host).findNext());
        QCOMPARE(host.marked(), u"T1 |t1|"_s);
    }

    void whatIsNotThereLeavesTheSelection()
    {
        FindHost host;
        search(host, u"a|b"_s, u"zz"_s);
        host.box().setSelLength(1);
        QVERIFY(!view(host).findNext());
        QVERIFY(!view(host).findPrevious());
        QCOMPARE(host.marked(), u"a|b|"_s);
    }

    void findsTheWordAtTheCaret()
    {
        FindHost host;
        host.setText(u"x|1 = (X1)\r\nx12\r\nREM x1"_s);
        QVERIFY(view(host).findNextAtCaret());
        QCOMPARE(host.marked(), u"x1 = (|X1|)\r\nx12\r\nREM x1"_s);
        QVERIFY(view(host).findNextAtCaret());
        QCOMPARE(host.marked(), u"x1 = (X1)\r\nx12\r\nREM |x1|"_s);
        QVERIFY(view(host).findNextAtCaret());
        QCOMPARE(host.marked(), u"|x1| = (X1)\r\nx12\r\nREM x1"_s);
        QVERIFY(view(host).findPreviousAtCaret());
        QCOMPARE(host.marked(), u"x1 = (X1)\r\nx12\r\nREM |x1|"_s);
        host.setText(u"x12| x1"_s);
        QVERIFY(!view(host).findNextAtCaret());
        QVERIFY(!view(host).findPreviousAtCaret());
        QCOMPARE(host.marked(), u"x12| x1"_s);
    }

    void theLineFoundComesIntoView()
    {
        FindHost host;
        host.setText(u"|x1\r\n"_s + u"\r\n"_s.repeated(200) + u"x1"_s);
        QVERIFY(view(host).findNextAtCaret());
        QVERIFY(host.box().viewport()->rect().contains(host.box().cursorRect()));
    }

    void onlyTheEditorShownIsSearched()
    {
        FindHost host;
        search(host, u"|ab ab"_s, u"ab"_s);
        host.list->setListviewType(dsInput);
        QVERIFY(!view(host).findNext());
        QVERIFY(!view(host).findNextAtCaret());
        host.list->setListviewType(dsCode);
        host.box().setReadOnly(true);
        QVERIFY(view(host).findNext());
        QVERIFY(view(host).findNextAtCaret());
    }
};

ORVT_TEST(FindAgainTest)
#include "FindAgainTest.moc"
