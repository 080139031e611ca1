// A property tells of exactly what has become another value, whoever changed it.

#include "AllComponents.h"
#include "PropertyValues.h"

#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/MemoryPropertyBag.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/SettingsStore.h>
#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QMetaProperty>
#include <QtTest/QSignalSpy>

#include <functional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// What a component's properties are, and how often each has told of a change.
class Watch
{
public:
    explicit Watch(QObject &component)
        : m_component(component)
    {
        for (const QMetaProperty &property : ownProperties(component)) {
            if (property.hasNotifySignal())
                m_watched.push_back(
                    {property, property.read(&component),
                     std::make_unique<QSignalSpy>(&component, property.notifySignal())});
        }
        QCoreApplication::processEvents(); // reading may select
        for (const Watched &watched : m_watched)
            watched.spy->clear();
    }

    // The properties whose signals do not agree with their values. Properties may
    // share a signal.
    QString wrong()
    {
        QCoreApplication::processEvents(); // what is told soon after
        QHash<QByteArray, bool> changed;
        for (const Watched &watched : m_watched)
            changed[watched.property.notifySignal().name()] |=
                watched.property.read(&m_component) != watched.before;
        QStringList names;
        for (const Watched &watched : m_watched) {
            const int wanted = changed.value(watched.property.notifySignal().name()) ? 1 : 0;
            if (watched.spy->size() != wanted)
                names.append(u"%1: %2 for %3"_s.arg(QString::fromLatin1(watched.property.name()))
                                 .arg(watched.spy->size())
                                 .arg(wanted));
        }
        return names.join(u", "_s);
    }

private:
    struct Watched
    {
        QMetaProperty property;
        QVariant before;
        std::unique_ptr<QSignalSpy> spy;
    };
    QObject &m_component;
    std::vector<Watched> m_watched;
};

// Gives one object's property to another's whenever it has changed.
class Binding : public QObject
{
    Q_OBJECT

public:
    Binding(QObject &from, QObject &to, const QMetaProperty &property)
        : m_from(from)
        , m_to(to)
        , m_property(property)
    {
        const int slot = metaObject()->indexOfSlot("follow()");
        connect(&from, property.notifySignal(), this, metaObject()->method(slot));
    }
    int runs() const { return m_runs; }

public Q_SLOTS:
    void follow()
    {
        if (++m_runs < 20) // else without an end
            m_property.write(&m_to, m_property.read(&m_from));
    }

private:
    QObject &m_from;
    QObject &m_to;
    QMetaProperty m_property;
    int m_runs = 0;
};

using Action = std::function<void(Component &)>;

template <typename T>
Action on(void (*act)(T &))
{
    return [act](Component &component) { act(static_cast<T &>(component)); };
}

void fill(ORVDataCombo &combo, LwType type)
{
    QString errMsg;
    combo.FillDataListview(type, nullptr, errMsg);
}

} // namespace

class PropertySignalsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void everyPropertyHasASignal_data() { AllComponents::addRows(); }
    void everyPropertyHasASignal();
    void tellsOfAnotherValueOnly_data() { AllComponents::addRows(); }
    void tellsOfAnotherValueOnly();
    void twoThatAreBoundEnd_data() { AllComponents::addRows(); }
    void twoThatAreBoundEnd();
    void whateverIsDoneTellsWhatChanged_data();
    void whateverIsDoneTellsWhatChanged();
    void enabledIsTheCombosOwn();
    void theCombosSetterHoldsInADisabledParent();
    void bearsAReceiverThatDestroysTheCombo();
    void bearsAReceiverThatDestroysWhatTheUserWorksWith();

private:
    TestFolder m_settings; // the tree saves its pages
    PointList m_inputs;
    PointList m_outputs;
};

void PropertySignalsTest::init()
{
    WidgetTest::init();
    setSettingsFile(m_settings.path(u"settings"_s));
    m_inputs.Clear();
    m_inputs.Add(u"Temp1"_s);
    m_inputs.Add(u"Temp2"_s);
    m_outputs.Clear();
    m_outputs.Add(u"Fan1"_s);
    ORVTreeview().SetCollectionRenamable(nullptr, nullptr, nullptr, &m_inputs, &m_outputs, nullptr);
}

void PropertySignalsTest::everyPropertyHasASignal()
{
    const auto component = AllComponents::component();
    QStringList silent;
    for (const QMetaProperty &property : ownProperties(*component)) {
        if (!property.hasNotifySignal())
            silent.append(QString::fromLatin1(property.name()));
    }
    QCOMPARE(silent.join(u", "_s), QString());
}

void PropertySignalsTest::tellsOfAnotherValueOnly()
{
    const auto component = AllComponents::component();
    for (const QMetaProperty &property : writableProperties(*component)) {
        const QVariantList both = values(*component, property);
        QVERIFY2(property.write(component.get(), both.first()), property.name());
        for (const int next : {0, 1, 1, 0}) {
            Watch watch(*component);
            property.write(component.get(), both.at(next));
            QCOMPARE(watch.wrong(), QString());
        }
        property.write(component.get(), both.first());
        const QVariant one = property.read(component.get());
        property.write(component.get(), both.last());
        QVERIFY2(property.read(component.get()) != one, property.name()); // else nothing is tested
    }
}

void PropertySignalsTest::twoThatAreBoundEnd()
{
    const auto first = AllComponents::component();
    const auto second = AllComponents::component();
    for (const QMetaProperty &property : writableProperties(*first)) {
        if (!property.hasNotifySignal() || qobject_cast<ORVTreeview *>(first.get()))
            continue; // a node is of one tree
        const Binding there(*first, *second, property);
        const Binding back(*second, *first, property);
        for (const QVariant &value : values(*first, property)) {
            property.write(first.get(), value);
            QCoreApplication::processEvents();
            QCOMPARE(property.read(second.get()), property.read(first.get()));
        }
        QVERIFY2(there.runs() + back.runs() <= 6, property.name());
    }
}

void PropertySignalsTest::whateverIsDoneTellsWhatChanged_data()
{
    QTest::addColumn<AllComponents::Factory>("factory");
    QTest::addColumn<Action>("prepare");
    QTest::addColumn<Action>("act");
    const auto list = [](const char *name, void (*prepare)(ORVListView &),
                         void (*act)(ORVListView &)) {
        QTest::newRow(name) << &AllComponents::made<ORVListView> << on(prepare) << on(act);
    };
    const auto combo = [](const char *name, void (*prepare)(ORVDataCombo &),
                          void (*act)(ORVDataCombo &)) {
        QTest::newRow(name) << &AllComponents::made<ORVDataCombo> << on(prepare) << on(act);
    };
    const auto tree = [](const char *name, void (*act)(ORVTreeview &)) {
        QTest::newRow(name)
            << &AllComponents::made<ORVTreeview> << on<ORVTreeview>([](ORVTreeview &it) {
                   it.setSelectedItem(it.Nodes()->Item(3));
               })
            << on(act);
    };
    const auto nothing = [](ORVListView &) {};

    list(
        "type again, with the host's caption", [](ORVListView &it) { it.setCaption(u"mine"_s); },
        [](ORVListView &it) { it.setListviewType(dsInput); });
    list(
        "type again", [](ORVListView &it) { it.setListviewType(dsInput); },
        [](ORVListView &it) { it.setListviewType(dsInput); });
    list("no type", nothing, [](ORVListView &it) { it.setListviewType(static_cast<LwType>(13)); });
    list(
        "fewer columns", [](ORVListView &it) { it.setLabelColumn(5); },
        [](ORVListView &it) { it.setListviewType(dsOutputParam); });
    list(
        "columns of the host", [](ORVListView &it) { it.setLabelColumn(5); },
        [](ORVListView &it) { it.ColumnHerders()->Clear(); });
    list(
        "texts again", [](ORVListView &it) { it.ReInitializeStrings(); },
        [](ORVListView &it) { it.ReInitializeStrings(); });
    list(
        "texts of another language", [](ORVListView &it) { it.ReInitializeStrings(); },
        [](ORVListView &it) {
            static TranslatedTexts german(QLocale(QLocale::German));
            setTextProvider(&german);
            it.ReInitializeStrings();
        });
    list("the list's selection mode", nothing,
         [](ORVListView &it) { it.listView()->setMultiSelect(true); });
    list("the list's label column", nothing,
         [](ORVListView &it) { it.listView()->setLabelColumn(2); });
    list(
        "an empty bag", [](ORVListView &it) { it.setEnabled(false); },
        [](ORVListView &it) { it.ReadProperties(MemoryPropertyBag()); });
    list("program of the box", nothing, [](ORVListView &it) { it.RTextBox()->setText(u"a"_s); });
    list(
        "the same program", [](ORVListView &it) { it.setCodeText(u"a"_s); },
        [](ORVListView &it) { it.setCodeText(u"a"_s); });
    list(
        "a colour", [](ORVListView &it) { it.setCodeText(u"a"_s); },
        [](ORVListView &it) {
            it.RTextBox()->setSelLength(1);
            it.RTextBox()->setSelColor(0xff);
        });
    list(
        "typed", [](ORVListView &it) { it.setListviewType(dsCode); },
        [](ORVListView &it) { QTest::keyClick(it.RTextBox(), Qt::Key_A); });
    list(
        "cleared",
        [](ORVListView &it) {
            it.setListviewType(dsCode);
            it.setCodeText(u"a"_s);
        },
        [](ORVListView &it) { it.Clear(); });
    list("a bad indent", nothing, [](ORVListView &it) { it.setIndentUnit(u"x"_s); });

    combo(
        "filled", [](ORVDataCombo &) {}, [](ORVDataCombo &it) { fill(it, dsInput); });
    combo(
        "filled again",
        [](ORVDataCombo &it) {
            fill(it, dsInput);
            it.SetListIndex(u"Temp1"_s);
        },
        [](ORVDataCombo &it) { fill(it, dsInput); });
    combo(
        "chosen", [](ORVDataCombo &it) { fill(it, dsInput); },
        [](ORVDataCombo &it) { it.SetListIndex(u"Temp2"_s); });
    combo(
        "chosen again",
        [](ORVDataCombo &it) {
            fill(it, dsInput);
            it.SetListIndex(u"Temp2"_s);
        },
        [](ORVDataCombo &it) { it.SetListIndex(u"Temp2"_s); });
    combo(
        "cleared combo",
        [](ORVDataCombo &it) {
            fill(it, dsInput);
            it.SetListIndex(u"Temp2"_s);
        },
        [](ORVDataCombo &it) { it.Clear(); });
    combo(
        "text of an entry",
        [](ORVDataCombo &it) {
            fill(it, dsInput);
            it.SetListIndex(u"Temp2"_s);
        },
        [](ORVDataCombo &it) { it.setText(u"other"_s); });
    combo(
        "a key", [](ORVDataCombo &it) { fill(it, dsInput); },
        [](ORVDataCombo &it) { QTest::keyClick(it.focusProxy(), Qt::Key_Down); });
    combo(
        "a letter",
        [](ORVDataCombo &it) {
            fill(it, dsInput);
            it.SetListIndex(u"Temp2"_s);
        },
        [](ORVDataCombo &it) { QTest::keyClick(it.focusProxy(), Qt::Key_X); });
    combo(
        "an empty bag for the combo", [](ORVDataCombo &it) { it.setEnabled(false); },
        [](ORVDataCombo &it) { it.ReadProperties(MemoryPropertyBag()); });

    tree("selected again", [](ORVTreeview &it) { it.setSelectedItem(it.Nodes()->Item(3)); });
    tree("none selected", [](ORVTreeview &it) { it.setSelectedItem(nullptr); });
    tree("removed", [](ORVTreeview &it) { it.Nodes()->Remove(it.Nodes()->Item(3)->Key()); });
    tree("all removed", [](ORVTreeview &it) { it.Nodes()->Clear(); });
    tree("by keyboard", [](ORVTreeview &it) { QTest::keyClick(it.focusProxy(), Qt::Key_Down); });
    tree("collapsed above", [](ORVTreeview &it) {
        QTest::keyClick(it.focusProxy(), Qt::Key_Left);
        QTest::keyClick(it.focusProxy(), Qt::Key_Left);
    });
}

void PropertySignalsTest::whateverIsDoneTellsWhatChanged()
{
    QFETCH(const Action, prepare);
    QFETCH(const Action, act);
    const auto component = AllComponents::component();
    component->resize(400, 300);
    component->show();
    prepare(*component);
    Watch watch(*component);
    act(*component);
    QCOMPARE(watch.wrong(), QString());
}

void PropertySignalsTest::enabledIsTheCombosOwn()
{
    QWidget form;
    ORVDataCombo combo(&form);
    QSignalSpy told(&combo, &ORVDataCombo::enabledChanged);
    form.setEnabled(false);
    form.setEnabled(true);
    QCOMPARE(told.size(), 0);
    QVERIFY(combo.Enabled());
    static_cast<QWidget &>(combo).setEnabled(false);
    QCOMPARE(told.size(), 1);
    QVERIFY(!combo.Enabled());
    combo.setProperty("enabled", true);
    QCOMPARE(told.size(), 2);
}

void PropertySignalsTest::theCombosSetterHoldsInADisabledParent()
{
    QWidget form;
    ORVDataCombo combo(&form);
    form.setEnabled(false);
    QSignalSpy told(&combo, &ORVDataCombo::enabledChanged);
    combo.setEnabled(false);
    QCOMPARE(told.size(), 1);
    combo.setProperty("Enabled", true);
    QCOMPARE(told.size(), 2);
    form.setEnabled(true);
    QCOMPARE(told.size(), 2);
    QVERIFY(combo.isEnabled());
}

void PropertySignalsTest::bearsAReceiverThatDestroysTheCombo()
{
    for (const bool byText : {false, true}) {
        QWidget form;
        const QPointer<ORVDataCombo> combo(new ORVDataCombo(&form));
        const auto destroy = [&] { delete combo.data(); };
        if (byText)
            connect(combo, &ORVDataCombo::textChanged, this, destroy);
        else
            connect(combo, &ORVDataCombo::enabledChanged, this, destroy);
        MemoryPropertyBag bag;
        bag.WriteProperty(u"Text"_s, u"text"_s, QString());
        bag.WriteProperty(u"Enabled"_s, false, true);
        combo->ReadProperties(bag);
        QVERIFY(combo.isNull());
    }
}

void PropertySignalsTest::bearsAReceiverThatDestroysWhatTheUserWorksWith()
{
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End}) {
        const QPointer<ORVTreeview> tree(new ORVTreeview);
        tree->show();
        tree->setSelectedItem(tree->Nodes()->Item(2));
        connect(tree, &ORVTreeview::selectedItemChanged, this, [&] { delete tree.data(); });
        QTest::keyClick(tree->focusProxy(), key);
        QTRY_VERIFY(tree.isNull());
    }
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_X}) {
        const QPointer<ORVDataCombo> combo(new ORVDataCombo);
        combo->show();
        fill(*combo, dsInput);
        combo->SetListIndex(u"Temp1"_s);
        connect(combo, &ORVDataCombo::listIndexChanged, this, [&] { delete combo.data(); });
        QTest::keyClick(combo->focusProxy(), key);
        QTRY_VERIFY(combo.isNull());
    }
    const QPointer<ORVListView> list(new ORVListView);
    list->setListviewType(dsCode);
    list->show();
    connect(list, &ORVListView::codeTextChanged, this, [&] { delete list.data(); });
    QTest::keyClick(list->RTextBox(), Qt::Key_A);
    QTRY_VERIFY(list.isNull());
}

ORVT_TEST(PropertySignalsTest)
#include "PropertySignalsTest.moc"
