#include "members/MemberEntries.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/Component.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A component in three lines: base, constructor and table.
class Lamp : public Component
{
    Q_OBJECT

public:
    using Component::Component;
    const MemberTable &Members() const override;

    bool IsOn() const { return m_isOn; }
    void setIsOn(bool on)
    {
        m_isOn = on;
        Q_EMIT Switched(m_isOn);
    }
    void Fail() { throw Error(InvalidCall, u"Lamp.Fail"_s, u"The lamp is broken"_s); }

Q_SIGNALS:
    void Switched(bool On);

private:
    bool m_isOn = false;
};

const MemberTable &Lamp::Members() const
{
    using namespace MemberEntries;
    static const MemberTable table(u"Lamp"_s, {
                                                  readWrite<&Lamp::IsOn, &Lamp::setIsOn>(u"IsOn"),
                                                  method<&Lamp::Fail>(u"Fail"),
                                                  raises<&Lamp::Switched>(1, u"Switched", u"On"),
                                              });
    return table;
}

struct Destroyer : EventSink
{
    explicit Destroyer(Component *component)
        : target(component)
    {
    }

    void Invoke(qint32, QVariantList &) override
    {
        ++count;
        delete target;
    }

    Component *target;
    int count = 0;
};

} // namespace

class ComponentTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void invokesByName();
    void tellsTheLastError();
    void deliversToSinks();
    void survivesACallThatDestroysIt();
};

void ComponentTest::invokesByName()
{
    Lamp lamp;
    QVariantList arguments{true};
    QVariant result;
    QCOMPARE(lamp.Invoke(u"IsOn"_s, arguments, result), CallSucceeded);
    arguments.clear();
    QCOMPARE(lamp.Invoke(u"ison"_s, arguments, result), CallSucceeded);
    QCOMPARE(result, QVariant(true));
}

void ComponentTest::tellsTheLastError()
{
    Lamp lamp;
    QVariantList arguments;
    QVariant result;
    QCOMPARE(lamp.LastError().Number(), CallSucceeded);
    QCOMPARE(lamp.Invoke(u"Fail"_s, arguments, result), InvalidCall);
    QCOMPARE(lamp.LastError().Number(), InvalidCall);
    QCOMPARE(lamp.LastError().Source(), u"Lamp.Fail"_s);
    QCOMPARE(lamp.LastError().Description(), u"The lamp is broken"_s);
    QCOMPARE(lamp.Invoke(u"Burn"_s, arguments, result), UnknownMember);
    QCOMPARE(lamp.LastError().Number(), UnknownMember);
    QCOMPARE(lamp.Invoke(u"IsOn"_s, arguments, result), CallSucceeded);
    QCOMPARE(lamp.LastError().Number(), CallSucceeded);
    QCOMPARE(lamp.LastError().Description(), QString());
}

void ComponentTest::deliversToSinks()
{
    Lamp lamp;
    Destroyer sink(nullptr);
    lamp.Unadvise(&sink);
    lamp.Advise(&sink);
    lamp.setIsOn(true);
    QCOMPARE(sink.count, 1);
    lamp.Unadvise(&sink);
    lamp.setIsOn(false);
    QCOMPARE(sink.count, 1);
}

void ComponentTest::survivesACallThatDestroysIt()
{
    QPointer<Lamp> lamp = new Lamp;
    Destroyer sink(lamp);
    lamp->Advise(&sink);
    QVariantList arguments{true};
    QVariant result;
    QCOMPARE(lamp->Invoke(u"IsOn"_s, arguments, result), CallSucceeded);
    QVERIFY(lamp.isNull());
    QCOMPARE(sink.count, 1);
}

ORVT_TEST(ComponentTest)
#include "ComponentTest.moc"

#include <QtCore/QPointer>
