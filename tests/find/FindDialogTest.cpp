// Find, as users do it: controls, modes, Find Next, options, histories.

#include "find/FindFixture.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class FindDialogTest : public WidgetTest
{
    Q_OBJECT

private:
    static QString plain(QString caption) { return caption.remove(u'&'); }

private Q_SLOTS:
    void findsTheNextMatch()
    {
        FindHost host;
        host.open(u"|x T1 y\r\nt1 z"_s);
        host.enter(0, u"T1"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |T1| y\r\nt1 z"_s);
        QCOMPARE(host.status(), u"Found in Row: 1, Col: 3"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x T1 y\r\n|t1| z"_s);
        QCOMPARE(host.status(), u"Found in Row: 2, Col: 1"_s);
    }
};

QTEST_MAIN(FindDialogTest)
#include "FindDialogTest.moc"
