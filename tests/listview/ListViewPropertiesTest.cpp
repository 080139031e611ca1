// What a host's form keeps of an ORVListView, and what Qt knows of its members.

#include "support/Raised.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/ORVTListview.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Leaves out what equals its default, as a form's file does, and notes the order.
class Bag final : public PropertyBag
{
public:
    QVariant ReadProperty(const QString &Name, const QVariant &Default) const override
    {
        read << Name + u'=' + Default.toString();
        return values.value(Name, Default);
    }
    void WriteProperty(const QString &Name, const QVariant &Value, const QVariant &Default) override
    {
        written << Name + u'=' + Value.toString() + u'/' + Default.toString();
        if (Value == Default)
            values.remove(Name);
        else
            values.insert(Name, Value);
    }

    QVariantHash values;
    mutable QStringList read;
    QStringList written;
};

const QStringList partNames{u"ListView1"_s, u"RichTextBox1"_s, u"ImgWrite"_s, u"ImgRead"_s,
                            u"LblCaption"_s};

QStringList enabledParts(const ORVListView &list)
{
    QStringList names;
    for (const QString &name : partNames) {
        if (list.findChild<QWidget *>(name)->isEnabled())
            names << name;
    }
    return names;
}

} // namespace

class ListViewPropertiesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void fourPropertiesAreReadInOrder();
    void anEmptyBagGivesTheDefaults();
    void whatWasWrittenIsReadAgain();
    void aStoredTypeIsAppliedInFull();
    void aStoredTypeThatIsNoneCountsAsInputs_data();
    void aStoredTypeThatIsNoneCountsAsInputs();
    void aStoredZeroIsTheEditor();
    void aControlStoredAsDisabledIsDisabled();
    void enabledIsForAllPartsTogether();
    void aSwitchEnablesItsFace();
    void aSwitchLeavesATableDisabled();
    void aNumberEnablesNothing();
    void noLabelIsEditedInADisabledControl();
    void captionIsTheHostsUntilTheNextSwitch();
    void changesAreTold();
    void sixPropertiesAreForForms();
    void aBagThatFailsRaisesError();
    void membersCanBeCalledByName();
    void bearsADestroyingReceiver_data();
    void bearsADestroyingReceiver();
};

void ListViewPropertiesTest::fourPropertiesAreReadInOrder()
{
    ORVListView list;
    Bag bag;
    list.ReadProperties(bag);
    QCOMPARE(bag.read, QStringList({u"Caption="_s, u"Enabled=true"_s, u"ListviewType=3"_s,
                                    u"MultiSelect=false"_s}));
    list.WriteProperties(bag);
    QCOMPARE(bag.written, QStringList({u"Caption=Inputs/"_s, u"Enabled=true/true"_s,
                                       u"ListviewType=3/3"_s, u"MultiSelect=false/false"_s}));
    QCOMPARE(bag.values.keys(), QStringList(u"Caption"_s));
}

void ListViewPropertiesTest::anEmptyBagGivesTheDefaults()
{
    ORVListView list;
    list.setListviewType(dsLog);
    list.setMultiSelect(true);
    list.setEnabled(false);
    list.ReadProperties(Bag());
    QCOMPARE(list.ListviewType(), dsInput);
    QCOMPARE(list.Caption(), u"Inputs"_s);
    QVERIFY(list.Enabled());
    QVERIFY(!list.MultiSelect());
    QCOMPARE(enabledParts(list), partNames);
}

void ListViewPropertiesTest::whatWasWrittenIsReadAgain()
{
    ORVListView list;
    list.setListviewType(dsNvo);
    list.setMultiSelect(true);
    list.setEnabled(false);
    Bag bag;
    list.WriteProperties(bag);
    ORVListView other;
    other.ReadProperties(bag);
    QCOMPARE(other.ListviewType(), dsNvo);
    QVERIFY(other.MultiSelect());
    QVERIFY(!other.Enabled());
    QCOMPARE(other.Caption(), list.Caption());
}

void ListViewPropertiesTest::aStoredTypeIsAppliedInFull()
{
    Bag bag;
    bag.values = {{u"Caption"_s, u"stored"_s}, {u"ListviewType"_s, 6}};
    ORVListView list;
    list.setNumberItems(2);
    list.ReadProperties(bag);
    QCOMPARE(list.Caption(), u"Logs"_s);
    QCOMPARE(list.ColumnHerders()->Count(), 8);
    QCOMPARE(list.ListItems()->Count(), 24);
    QCOMPARE(list.NumberItems(), 24);
}

void ListViewPropertiesTest::aStoredTypeThatIsNoneCountsAsInputs_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("13") << QVariant(13);
    QTest::newRow("-1") << QVariant(-1);
    QTest::newRow("text") << QVariant(u"many"_s);
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("huge") << QVariant(qint64{1} << 40);
}

void ListViewPropertiesTest::aStoredTypeThatIsNoneCountsAsInputs()
{
    QFETCH(QVariant, stored);
    Bag bag;
    bag.values.insert(u"ListviewType"_s, stored);
    ORVListView list;
    list.setListviewType(dsLog);
    list.ReadProperties(bag);
    QCOMPARE(list.ListviewType(), dsInput);
    QCOMPARE(list.ColumnHerders()->Count(), 7);
    QCOMPARE(list.ListItems()->Count(), 12);
}

void ListViewPropertiesTest::aStoredZeroIsTheEditor()
{
    Bag bag;
    bag.values.insert(u"ListviewType"_s, u"0"_s); // forms keep texts
    ORVListView list;
    list.ReadProperties(bag);
    QCOMPARE(list.ListviewType(), dsCode);
    QVERIFY(!list.RTextBox()->isHidden());
    QVERIFY(list.listView()->isHidden());
}

void ListViewPropertiesTest::aControlStoredAsDisabledIsDisabled()
{
    for (const int type : {int{dsCode}, int{dsTimer}}) {
        Bag bag;
        bag.values = {{u"Enabled"_s, false}, {u"ListviewType"_s, type}};
        ORVListView list;
        list.ReadProperties(bag);
        QVERIFY(!list.Enabled());
        QCOMPARE(enabledParts(list), QStringList());
    }
}

void ListViewPropertiesTest::enabledIsForAllPartsTogether()
{
    ORVListView list;
    list.setEnabled(false);
    QVERIFY(!list.Enabled());
    QCOMPARE(enabledParts(list), QStringList());
    QVERIFY(list.isEnabled()); // the widget itself
    list.setEnabled(true);
    QVERIFY(list.Enabled());
    QCOMPARE(enabledParts(list), partNames);
    list.setProperty("Enabled", false);
    QCOMPARE(enabledParts(list), QStringList());
}

void ListViewPropertiesTest::aSwitchEnablesItsFace()
{
    ORVListView list;
    list.setEnabled(false);
    list.setListviewType(dsCode);
    QCOMPARE(enabledParts(list), QStringList(u"RichTextBox1"_s));
    list.setRichTexteNable(false);
    list.setRichTextVisible(false);
    list.setNumberItems(0);
    QVERIFY(list.RTextBox()->isEnabled());
    QVERIFY(!list.RTextBox()->isHidden());
}

// Only the switch to the editor does; a form may set the type last.
void ListViewPropertiesTest::aSwitchLeavesATableDisabled()
{
    ORVListView list;
    list.setProperty("enabled", false);
    QVERIFY(!list.Enabled());
    list.setListviewType(dsOutput);
    QCOMPARE(enabledParts(list), QStringList());
    list.setListviewType(dsCode);
    list.setListviewType(dsLog);
    QVERIFY(!list.listView()->isEnabled());
    list.setEnabled(true);
    QCOMPARE(enabledParts(list), partNames);
}

void ListViewPropertiesTest::aNumberEnablesNothing()
{
    ORVListView list;
    list.setListviewType(dsLog);
    list.setEnabled(false);
    for (const qint16 count : {qint16{5}, qint16{0}, qint16{7}}) {
        list.setNumberItems(count);
        QCOMPARE(enabledParts(list), QStringList());
        list.ChangeListviewNumber(3);
        QCOMPARE(enabledParts(list), QStringList());
    }
    list.setEnabled(true);
    list.setNumberItems(2);
    QCOMPARE(enabledParts(list), partNames);
}

void ListViewPropertiesTest::noLabelIsEditedInADisabledControl()
{
    QWidget form;
    ORVListView list(&form);
    form.show();
    int announced = 0;
    connect(&list, &ORVListView::BeforeLabelEdit, this, [&] { ++announced; });
    list.setSelectedItem(list.ListItems()->Item(2));
    const auto editors = [&] {
        return list.listView()->viewport()->findChildren<QWidget *>().size();
    };
    list.setEnabled(false);
    list.StartLabelEdit();
    list.setEnabled(true);
    form.setEnabled(false); // a parent's doing
    list.StartLabelEdit();
    form.setEnabled(true);
    QCOMPARE(announced, 0);
    QCOMPARE(editors(), 0);
    const auto disable = connect(&list, &ORVListView::BeforeLabelEdit, this,
                                 [&] { list.setEnabled(false); }); // at the last moment
    list.StartLabelEdit();
    QCOMPARE(editors(), 0);
    disconnect(disable);
    list.setEnabled(true);
    list.StartLabelEdit();
    QCOMPARE(announced, 2);
    QCOMPARE(editors(), 1);
}

void ListViewPropertiesTest::captionIsTheHostsUntilTheNextSwitch()
{
    ORVListView list;
    list.setCaption(u"Sensors of the <b>roof</b> & attic"_s);
    QCOMPARE(list.Caption(), u"Sensors of the <b>roof</b> & attic"_s);
    list.ChangeListviewNumber(3);
    QCOMPARE(list.Caption(), u"Sensors of the <b>roof</b> & attic"_s);
    list.setListviewType(dsInput);
    QCOMPARE(list.Caption(), u"Inputs"_s);
}

void ListViewPropertiesTest::changesAreTold()
{
    ORVListView list;
    QSignalSpy caption(&list, &ORVListView::captionChanged);
    QSignalSpy enabled(&list, &ORVListView::enabledChanged);
    QSignalSpy type(&list, &ORVListView::listviewTypeChanged);
    QSignalSpy multiSelect(&list, &ORVListView::multiSelectChanged);
    list.setListviewType(dsTimer);
    QCOMPARE(type.size(), 1);
    QCOMPARE(caption.size(), 1);
    list.setListviewType(static_cast<LwType>(13));
    QCOMPARE(type.size(), 1);
    list.setEnabled(false);
    QCOMPARE(enabled.size(), 1);
    list.setMultiSelect(true);
    QCOMPARE(multiSelect.size(), 1);
    list.setCaption(u"x"_s);
    QCOMPARE(caption.size(), 2);
}

void ListViewPropertiesTest::sixPropertiesAreForForms()
{
    const ORVListView list;
    const QMetaObject &meta = *list.metaObject();
    QStringList kept;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QCOMPARE(property.isStored(), property.isDesignable());
        if (property.isStored() && property.name() != QByteArray("enabled")) {
            kept << QString::fromLatin1(property.name());
            QVERIFY(property.hasNotifySignal());
        }
    }
    // In the order in which forms set them: a type brings its own caption.
    QCOMPARE(kept, QStringList({u"ListviewType"_s, u"Caption"_s, u"Enabled"_s, u"MultiSelect"_s,
                                u"columnLayout"_s, u"programColours"_s}));
}

void ListViewPropertiesTest::aBagThatFailsRaisesError()
{
    struct Failing final : PropertyBag
    {
        QVariant ReadProperty(const QString &, const QVariant &) const override { throw 42; }
        void WriteProperty(const QString &, const QVariant &, const QVariant &) override
        {
            throw 42;
        }
    };
    ORVListView list;
    list.setCaption(u"kept"_s);
    Failing bag;
    QVERIFY(raisedBy([&] { list.ReadProperties(bag); }));
    QVERIFY(raisedBy([&] { list.WriteProperties(bag); }));
    QCOMPARE(list.Caption(), u"kept"_s);
    ORVDataCombo combo;
    QVERIFY(raisedBy([&] { combo.ReadProperties(bag); }));
    QVERIFY(raisedBy([&] { combo.WriteProperties(bag); }));
}

void ListViewPropertiesTest::membersCanBeCalledByName()
{
    ORVListView list;
    QVERIFY(list.setProperty("NumberItems", 3));
    QCOMPARE(list.property("NumberItems").toInt(), 3);
    QVERIFY(list.setProperty("IsHOASupported", true));
    QCOMPARE(list.property("CurrentType").toInt(), int{dsInput});
    QVERIFY(QMetaObject::invokeMethod(&list, "UpdateSubItems", Q_ARG(QString, u"v"_s),
                                      Q_ARG(QString, u"t"_s), Q_ARG(qint16, qint16{1})));
    QCOMPARE(list.ListItems()->Item(3)->SubItem(1), u"v"_s);
    QVERIFY(QMetaObject::invokeMethod(&list, "setIsWait", Q_ARG(bool, true)));
    QVERIFY(QMetaObject::invokeMethod(&list, "SetImage", Q_ARG(bool, true)));
    QVERIFY(QMetaObject::invokeMethod(&list, "Drag")); // nothing
    ListItem *item = nullptr;
    QVERIFY(QMetaObject::invokeMethod(&list, "GetFirstVisible",
                                      Q_RETURN_ARG(ORVTListview::ListItem *, item)));
    qint32 width = 0;
    QVERIFY(QMetaObject::invokeMethod(&list, "GetSubItemWidth", Q_RETURN_ARG(qint32, width),
                                      Q_ARG(qint16, qint16{0})));
    QCOMPARE(width, 1440);
}

void ListViewPropertiesTest::bearsADestroyingReceiver_data()
{
    QTest::addColumn<QString>("signal");
    for (const QString &signal : {u"caption"_s, u"enabled"_s, u"type"_s, u"multi"_s})
        QTest::newRow(qPrintable(signal)) << signal;
}

void ListViewPropertiesTest::bearsADestroyingReceiver()
{
    QFETCH(QString, signal);
    auto *list = new ORVListView;
    list->setListviewType(dsLog); // so that reading changes each
    list->setMultiSelect(true);
    list->setEnabled(false);
    const QPointer<ORVListView> guard(list);
    const auto destroy = [&] { delete guard.data(); };
    if (signal == u"caption"_s)
        connect(list, &ORVListView::captionChanged, this, destroy);
    else if (signal == u"enabled"_s)
        connect(list, &ORVListView::enabledChanged, this, destroy);
    else if (signal == u"type"_s)
        connect(list, &ORVListView::listviewTypeChanged, this, destroy);
    else
        connect(list, &ORVListView::multiSelectChanged, this, destroy);
    list->ReadProperties(Bag());
    QVERIFY(guard.isNull());
}

ORVT_TEST(ListViewPropertiesTest)
#include "ListViewPropertiesTest.moc"
