// Every event of every component, by its number.

#include "AllComponents.h"
#include "SampleArguments.h"
#include "WholeUse.h"

#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/DataObject.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QSet>
#include <QtGui/QKeyEvent>

#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// What another value of a type is.
QVariant other(const QVariant &value)
{
    if (value.metaType().id() == QMetaType::QString)
        return value.toString() + u"!"_s;
    if (value.metaType() == QMetaType::fromType<QList<Pages>>())
        return QVariant::fromValue(QList<Pages>(1));
    QVariant number(value.toInt() == 0 ? 1 : 0);
    number.convert(value.metaType());
    return number;
}

// Changes whatever it is told.
struct ChangingSink : EventSink
{
    void Invoke(qint32 Number, QVariantList &Arguments) override
    {
        numbers.append(Number);
        count = Arguments.size();
        for (QVariant &argument : Arguments) {
            if (!argument.metaType().flags().testFlag(QMetaType::PointerToQObject) &&
                !argument.metaType().flags().testFlag(QMetaType::IsPointer))
                argument = other(argument);
        }
    }

    QList<qint32> numbers;
    qsizetype count = -1;
};

struct ListeningSink : EventSink
{
    void Invoke(qint32 Number, QVariantList &) override { numbers.insert(Number); }

    QSet<qint32> numbers;
};

// Raises the event with zero and empty arguments; what they are afterwards.
QVariantList raised(Component &component, const Member &event)
{
    QVariantList variables;
    for (const MemberArgument &argument : event.arguments)
        variables.append(QVariant(argument.type));
    std::vector<void *> values{nullptr};
    for (QVariant &variable : variables)
        values.push_back(variable.data());
    component.qt_metacall(QMetaObject::InvokeMetaMethod, event.signalIndex, values.data());
    return variables;
}

} // namespace

class NumberedEventsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void everyEventComesWithItsNumber_data() { AllComponents::addRows(); }
    void everyEventComesWithItsNumber();
    void usersAndHostsRaiseNoneThatAreNeverRaised_data();
    void usersAndHostsRaiseNoneThatAreNeverRaised();

private:
    TestFolder m_settings;
};

void NumberedEventsTest::init()
{
    WidgetTest::init();
    setSettingsFile(m_settings.path(u"settings"_s));
}

void NumberedEventsTest::everyEventComesWithItsNumber()
{
    const auto component = AllComponents::component();
    ChangingSink sink;
    component->Advise(&sink);
    for (const Member &event : component->Members().members()) {
        if (event.kind != MemberKind::Event)
            continue;
        sink.numbers.clear();
        const QVariantList after = raised(*component, event);
        QCOMPARE(sink.numbers, QList<qint32>({event.number}));
        QCOMPARE(sink.count, event.arguments.size());
        for (qsizetype i = 0; i < after.size(); ++i) {
            const bool goesBack = event.arguments.at(i).direction != ArgumentDirection::In;
            const QVariant before(event.arguments.at(i).type);
            const bool isChanged =
                !event.arguments.at(i).type.equals(after.at(i).constData(), before.constData());
            QVERIFY2(isChanged == goesBack, qPrintable(event.name));
        }
    }
}

void NumberedEventsTest::usersAndHostsRaiseNoneThatAreNeverRaised_data()
{
    AllComponents::addRows();
}

void NumberedEventsTest::usersAndHostsRaiseNoneThatAreNeverRaised()
{
    static const QHash<QString, QStringList> neverRaised{
        {u"ORVListView"_s, {u"QueryReload"_s, u"QuerySetWord"_s, u"UpdateWordList"_s}},
        {u"ORVTreeview"_s, {u"UpdatePages"_s}},
        {u"ORVDataCombo"_s, {}},
    };
    const auto component = AllComponents::component();
    const QString name = component->Members().component();
    ListeningSink sink;
    component->Advise(&sink);
    component->show();
    QVERIFY(QTest::qWaitForWindowExposed(component.get()));
    WholeUse::callEveryMember(*component);
    WholeUse::useEveryWidget(*component);
    QStringList heard;
    for (const Member &event : component->Members().members()) {
        const bool isNever =
            !neverRaised.contains(name) || neverRaised.value(name).contains(event.name);
        if (event.kind == MemberKind::Event && isNever && sink.numbers.contains(event.number))
            heard.append(event.name);
    }
    QCOMPARE(heard, QStringList());
    QCOMPARE(sink.numbers.isEmpty(), name == u"ORVRichText"_s);
}

ORVT_TEST(NumberedEventsTest)
#include "NumberedEventsTest.moc"
