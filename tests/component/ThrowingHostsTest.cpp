// A host that throws in every handler, of signals and by number: nothing of it reaches
// whoever set a property, called a member by name, pressed a key or waited for a timer.

#include "AllComponents.h"
#include "PropertyValues.h"
#include "WholeUse.h"

#include "support/Disturbances.h"
#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include <ORVTListview/CodeView.h>
#include <ORVTListview/EventSink.h>
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/LateCall.h>
#include <ORVTListview/Problem.h>
#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QSet>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct ThrowingSink final : EventSink
{
    void Invoke(qint32, QVariantList &) override
    {
        ++events;
        throw 42;
    }

    int events = 0;
};

// A document is written anew, and a type is given as its number.
bool hasTaken(const QVariant &now, const QVariant &value)
{
    if (now.metaType().flags().testFlag(QMetaType::IsEnumeration))
        return now.toInt() == value.toInt();
    return now == value || value.toString().startsWith(u"{\\rtf");
}

// What a member says of itself may end a call, what the host threw may not.
bool isTheHosts(const std::optional<Error> &error)
{
    return error &&
           (error->Number() == UnexpectedFailure || error->Description() == u"the host fails"_s);
}

} // namespace

class ThrowingHostsTest : public ThrowingHostTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        ThrowingHostTest::init();
        setSettingsFile(m_settings.path(u"settings"_s));
    }

    void propertiesAreSetAllTheSame_data() { AllComponents::addRows(); }
    void propertiesAreSetAllTheSame();
    void theEditorsPropertiesToo();
    void theEditorsOtherSignalsToo();
    void lateCallsEndAsUsual_data() { AllComponents::addRows(); }
    void lateCallsEndAsUsual();
    void keysMouseAndTimersEndAsUsual_data() { AllComponents::addRows(); }
    void keysMouseAndTimersEndAsUsual();

private:
    TestFolder m_settings;
};

void ThrowingHostsTest::propertiesAreSetAllTheSame()
{
    const auto component = AllComponents::component();
    ThrowingSink sink;
    component->Advise(&sink); // first, for who throws in a signal ends it
    const ThrowingHost host(*component, 1);
    for (const QMetaProperty &property : writableProperties(*component)) {
        const int before = host.events();
        for (const QVariant &value : values(*component, property)) {
            property.write(component.get(), value);
            QCoreApplication::processEvents();
            QVERIFY2(hasTaken(property.read(component.get()), value), property.name());
        }
        QVERIFY2(!property.hasNotifySignal() || host.events() > before, property.name());
    }
}

void ThrowingHostsTest::theEditorsPropertiesToo()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.show();
    CodeView &view = *list.codeView();
    const ThrowingHost host(view, 1, QObject::staticMetaObject);
    const QMetaObject &meta = *view.metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (!property.isWritable() || !property.hasNotifySignal())
            continue;
        const bool isSwitch = property.metaType().id() == QMetaType::Bool;
        const QVariant other = isSwitch ? QVariant(!property.read(&view).toBool()) : QVariant(150);
        const int before = host.events();
        QVERIFY2(property.write(&view, other), property.name());
        QCoreApplication::processEvents();
        QCOMPARE(property.read(&view), other);
        QVERIFY2(host.events() > before, property.name());
    }
}

void ThrowingHostsTest::theEditorsOtherSignalsToo()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.setCodeText(u"if x\r\nthen y"_s);
    list.resize(400, 300);
    list.show();
    list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    CodeView &view = *list.codeView();
    const ThrowingHost host(view, 1, QObject::staticMetaObject);
    Problem problem;
    problem.line = 2;
    problem.length = 4;
    problem.text = u"wrong"_s;
    view.setProblems({problem});
    const int chosen = host.events();
    QVERIFY(view.nextProblem());
    QCOMPARE(host.events(), chosen + 1);
    list.RTextBox()->setReadOnly(true); // told soon after
    QTRY_COMPARE(host.events(), chosen + 2);
    QTest::mouseMove(
        list.windowHandle(),
        list.RTextBox()->viewport()->mapTo(
            &list, list.RTextBox()->cursorRect(QTextCursor(list.RTextBox()->document())).center() +
                       QPoint(3, 0)));
    QTRY_COMPARE(host.events(), chosen + 3);
}

void ThrowingHostsTest::lateCallsEndAsUsual()
{
    const auto component = AllComponents::component();
    ThrowingSink sink;
    component->Advise(&sink); // first, for who throws in a signal ends it
    const ThrowingHost host(*component, 1);
    component->show();
    for (const Member &member : component->Members().members()) {
        const auto call = [&](QVariantList arguments) {
            QVariant result;
            const auto error =
                callLate(*component, component->Members(), member.name, arguments, result);
            QVERIFY2(!isTheHosts(error), qPrintable(member.name));
            QCoreApplication::processEvents();
        };
        if (member.kind != MemberKind::Event && member.call)
            call(member.kind == MemberKind::Method ? SampleArguments::all(member) : QVariantList());
        if (member.put)
            call({SampleArguments::one(member.type)});
    }
    const QString name = component->Members().component();
    const bool isQuiet = name == u"ORVRichText"_s || name == u"ORVTreeview"_s;
    QCOMPARE(host.events() > 0, !isQuiet);
}

void ThrowingHostsTest::keysMouseAndTimersEndAsUsual()
{
    const auto component = AllComponents::component();
    ThrowingSink sink;
    component->Advise(&sink); // first, for who throws in a signal ends it
    const ThrowingHost host(*component, 1);
    component->show();
    QVERIFY(QTest::qWaitForWindowExposed(component.get()));
    WholeUse::useEveryWidget(*component);
    if (auto *list = qobject_cast<ORVListView *>(component.get())) {
        list->setListviewType(dsCode);
        WholeUse::useEveryWidget(*component);
        const int before = host.events();
        QTRY_VERIFY(host.events() > before); // the timer's StatusUpdate
    }
    const bool isHeard = component->Members().component() != u"ORVRichText"_s;
    QCOMPARE(host.events() > 0, isHeard);
    QCOMPARE(sink.events > 0, isHeard);
}

ORVT_TEST(ThrowingHostsTest)
#include "ThrowingHostsTest.moc"
