// What a screen reader is told of the find dialog's results.

#include "find/FindFixture.h"
#include "support/ActiveAccessibility.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// What a screen reader is told of the status bar.
class ToldEvents
{
public:
    ToldEvents()
    {
        told.clear();
        QAccessible::installUpdateHandler(&note);
    }
    ~ToldEvents() { QAccessible::installUpdateHandler(nullptr); }

    static inline QStringList told;

private:
    ActiveAccessibility m_active;

    static void note(QAccessibleEvent *event)
    {
        if (!event->object() || event->object()->objectName() != u"StatusBar1"_s)
            return;
        const QString name = event->accessibleInterface()->text(QAccessible::Name);
        if (event->type() == QAccessible::Alert)
            told << u"alert: "_s + name;
        else if (event->type() == QAccessible::NameChanged)
            told << u"name: "_s + name;
    }
};

} // namespace

class FindAccessTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void resultsAreToldToScreenReaders()
    {
        FindHost host;
        const ToldEvents events;
        host.open(u"|x a"_s, FindHost::Replace);
        host.enter(u"a"_s, u"b"_s);
        ToldEvents::told.clear();
        host.findNext();
        QCOMPARE(ToldEvents::told, QStringList({u"name: Found in Row: 1, Col: 3"_s,
                                                u"alert: Found in Row: 1, Col: 3"_s}));
        ToldEvents::told.clear();
        host.findNext();
        QCOMPARE(ToldEvents::told, QStringList({u"name: Not found!"_s, u"alert: Not found!"_s}));
        ToldEvents::told.clear();
        host.enter(0, u"nowhere"_s);
        host.findNext(); // the same result once more
        QCOMPARE(ToldEvents::told, QStringList({u"name: Not found!"_s, u"alert: Not found!"_s}));
        ToldEvents::told.clear();
        host.replaceAll();
        QCOMPARE(ToldEvents::told,
                 QStringList({u"name: 0 replace(s)!"_s, u"alert: 0 replace(s)!"_s}));
    }
};

ORVT_TEST(FindAccessTest)
#include "FindAccessTest.moc"
