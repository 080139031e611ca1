// What receivers of events may do: anything. Each event of each control, from each of
// its sources. To be run under valgrind too, because a fault of this kind often is one
// of the toolkit, whose memory is not instrumented.

#include "EventScenes.h"

#include "support/AnyReceiver.h"
#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QHash>
#include <QtCore/QMetaMethod>
#include <QtCore/QSet>
#include <QtWidgets/QApplication>

#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Sink : EventSink
{
    explicit Sink(qint32 event, std::function<void()> act)
        : m_event(event)
        , m_act(std::move(act))
    {
    }

    void Invoke(qint32 Number, QVariantList &) override
    {
        if (Number == m_event)
            m_act();
    }

private:
    qint32 m_event;
    std::function<void()> m_act;
};

QMetaMethod signalOf(const QObject &raiser, const char *name)
{
    const QMetaObject &meta = *raiser.metaObject();
    for (int i = 0; i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal && meta.method(i).name() == name)
            return meta.method(i);
    }
    return {};
}

// Of a component; 0 for another widget.
qint32 eventNumber(const EventScene &scene, const char *name)
{
    const auto *component = qobject_cast<const Component *>(scene.control.data());
    if (!component)
        return 0;
    for (const Member &member : component->Members().members()) {
        if (member.kind == MemberKind::Event && member.name == QLatin1StringView(name))
            return member.number;
    }
    return 0;
}

// The signals that a class itself declares, of a component all that it has as such.
QStringList declaredSignals(const QMetaObject &meta)
{
    QStringList names;
    const QMetaObject &component = Component::staticMetaObject;
    const int first = meta.inherits(&component) ? component.methodCount() : meta.methodOffset();
    for (int i = first; i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            names.append(QString::fromLatin1(meta.method(i).name()));
    }
    return names;
}

struct Deed
{
    const char *name;
    void (*act)(EventScene &);
    bool destroys = false;
    const char *warning = nullptr;
};

void closeWindow(EventScene &scene)
{
    scene.window->close();
}

void destroyWindow(EventScene &scene)
{
    delete scene.window;
}

const Deed deeds[] = {
    {"destroys the control", [](EventScene &scene) { delete scene.control; }, true},
    {"destroys the window", destroyWindow, true},
    {"closes the window", closeWindow, true},
    {"clears it", [](EventScene &scene) { scene.clear(); }},
    {"changes the type", [](EventScene &scene) { scene.changeType(); }},
};

const Deed throws[] = {
    {"throws an exception", [](EventScene &) { throw std::runtime_error("the host fails"); }, false,
     "An event handler failed: the host fails"},
    {"throws a number", [](EventScene &) { throw 42; }, false, "An event handler failed"},
};

// The toolkit bears neither to lose an object in the object's own signal, nor a window
// while it is being pressed with the button that opens context menus; such a window can
// be closed, which destroys it soon after.
bool isTried(const EventSubject &subject, const EventSource &source, const Deed &deed)
{
    if (deed.destroys && !subject.mayBeDestroyed)
        return false;
    const bool isRightPress = QByteArrayView(source.event) != "MouseUp" &&
                              QByteArrayView(source.by) == "the right button";
    return deed.act != (isRightPress ? destroyWindow : closeWindow);
}

template <std::size_t count>
void addRows(const Deed (&all)[count])
{
    QTest::addColumn<const EventSubject *>("subject");
    QTest::addColumn<const EventSource *>("source");
    QTest::addColumn<const Deed *>("deed");
    for (const EventSubject &subject : eventSubjects()) {
        for (const EventSource &source : subject.sources) {
            for (const Deed &deed : all) {
                if (isTried(subject, source, deed))
                    QTest::addRow("%s, %s by %s, %s", subject.name, source.event, source.by,
                                  deed.name)
                        << &subject << &source << &deed;
            }
        }
    }
}

} // namespace

class ReceiversTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setDoubleClickInterval(20); } // what clicks wait for
    void init() override
    {
        WidgetTest::init();
        setSettingsFile(m_settings.path(u"settings"_s));
    }

    void everyEventHasASource();
    void receiversMayDoAnything_data() { addRows(deeds); }
    void receiversMayDoAnything() { carryOut(); }
    void receiversMayThrow_data() { addRows(throws); }
    void receiversMayThrow() { carryOut(); }
    void sinksMayThrow_data();
    void sinksMayThrow();

private:
    void carryOut();
    void provoke(EventScene &scene, const EventSource &source, const bool &done);

    TestFolder m_settings;
};

// Those that nothing but a running drag raises have their tests where drags run.
void ReceiversTest::everyEventHasASource()
{
    static const QSet<QString> elsewhere{
        u"OLEGiveFeedback"_s, u"OLESetData"_s,     u"QueryReload"_s,
        u"QuerySetWord"_s,    u"UpdateWordList"_s, u"UpdatePages"_s,
        u"edited"_s,          u"focusLeft"_s,      u"textReplaced"_s};
    QHash<const QMetaObject *, QSet<QString>> covered;
    for (const EventSubject &subject : eventSubjects()) {
        const auto scene = subject.make();
        const QObject &raiser = *subject.raiser(*scene);
        for (const EventSource &source : subject.sources) {
            QVERIFY2(signalOf(raiser, source.event).isValid(), source.event);
            covered[raiser.metaObject()].insert(QString::fromLatin1(source.event));
        }
        if (scene->control == &raiser)
            covered[raiser.metaObject()]; // and nothing else, if that is so
    }
    for (auto it = covered.cbegin(); it != covered.cend(); ++it) {
        for (const QString &name : declaredSignals(*it.key())) {
            const bool isOfProperty = name.endsWith(u"Changed"_s);
            const bool isCovered = it.value().contains(name) || elsewhere.contains(name);
            QVERIFY2(isOfProperty || isCovered,
                     qPrintable(QString::fromLatin1(it.key()->className()) + u' ' + name));
        }
    }
}

void ReceiversTest::provoke(EventScene &scene, const EventSource &source, const bool &done)
{
    scene.show();
    source.provoke(scene);
    QTRY_VERIFY(done); // timers and queued events come later
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void ReceiversTest::carryOut()
{
    QFETCH(const EventSubject *, subject);
    QFETCH(const EventSource *, source);
    QFETCH(const Deed *, deed);
    const auto scene = subject->make();
    QObject &raiser = *subject->raiser(*scene);
    bool done = false;
    const AnyReceiver receiver(raiser, signalOf(raiser, source->event), [&] {
        if (!std::exchange(done, true))
            deed->act(*scene);
    });
    if (deed->warning)
        QTest::ignoreMessage(QtWarningMsg, deed->warning);
    provoke(*scene, *source, done);
    QCOMPARE(scene->control.isNull(), deed->destroys);
}

void ReceiversTest::sinksMayThrow_data()
{
    QTest::addColumn<const EventSubject *>("subject");
    QTest::addColumn<const EventSource *>("source");
    for (const EventSubject &subject : eventSubjects()) {
        const auto scene = subject.make();
        for (const EventSource &source : subject.sources) {
            if (subject.raiser(*scene) == scene->control && eventNumber(*scene, source.event) > 0)
                QTest::addRow("%s, %s by %s", subject.name, source.event, source.by)
                    << &subject << &source;
        }
    }
}

void ReceiversTest::sinksMayThrow()
{
    QFETCH(const EventSubject *, subject);
    QFETCH(const EventSource *, source);
    const auto scene = subject->make();
    bool done = false;
    Sink sink(eventNumber(*scene, source->event), [&] {
        if (!std::exchange(done, true))
            throw 42;
    });
    static_cast<Component &>(*scene->control).Advise(&sink);
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed");
    provoke(*scene, *source, done);
    QVERIFY(scene->control);
}

ORVT_TEST(ReceiversTest)
#include "ReceiversTest.moc"
