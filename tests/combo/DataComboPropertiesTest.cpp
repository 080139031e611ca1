// Properties of ORVDataCombo, and members that are reached by name.

#include "combo/DataComboHost.h"
#include "editor/rules/language/Vocabulary.h"
#include "shared/texts/TextTable.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/Error.h>

#include <QtTest/QSignalSpy>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class Bag final : public PropertyBag
{
public:
    QVariant ReadProperty(const QString &name, const QVariant &byDefault) const override
    {
        return values.value(name, byDefault);
    }
    void WriteProperty(const QString &name, const QVariant &value,
                       const QVariant &byDefault) override
    {
        if (value != byDefault)
            values.insert(name, value);
    }

    QVariantMap values;
};

} // namespace

class DataComboPropertiesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void textIsSetAndRead();
    void textOfTheHostEndsTheSelection();
    void enabledIsTheControlsOwn();
    void propertiesComeBack();
    void propertiesHaveTheirDefaults();
    void changesOfPersistentPropertiesAreTold();
    void membersWithoutEffectHaveNone();
    void textsAreFetchedAgain();
    void membersAreReachedByName();
};

void DataComboPropertiesTest::textIsSetAndRead()
{
    DataComboHost host;
    QSignalSpy changes(host.combo, &ORVDataCombo::Change);
    host.combo->setText(u"any text"_s);
    QCOMPARE(host.combo->Text(), u"any text"_s);
    QCOMPARE(host.field().text(), u"any text"_s);
    QCOMPARE(changes.count(), 1);
    host.combo->setText(u"any text"_s);
    QCOMPARE(changes.count(), 1);
    host.combo->setText(QString());
    QCOMPARE(changes.count(), 2);
}

void DataComboPropertiesTest::textOfTheHostEndsTheSelection()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp2"_s);
    host.combo->setText(u"Temp2"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{1});
    host.combo->setText(u"Temp1"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
    QCOMPARE(host.combo->Text(), u"Temp1"_s);
}

void DataComboPropertiesTest::enabledIsTheControlsOwn()
{
    DataComboHost host;
    QVERIFY(host.combo->Enabled());
    host.combo->setEnabled(false);
    QVERIFY(!host.combo->Enabled());
    QVERIFY(!host.inner().isEnabled());
    host.combo->setEnabled(true);
    QVERIFY(host.inner().isEnabled());
    host.form.setEnabled(false);
    QVERIFY(host.combo->Enabled());
    QVERIFY(!host.combo->isEnabled());
}

void DataComboPropertiesTest::propertiesComeBack()
{
    Bag bag;
    {
        DataComboHost host;
        host.combo->setText(u"kept"_s);
        host.combo->setEnabled(false);
        host.combo->WriteProperties(bag);
    }
    QCOMPARE(bag.values, QVariantMap({{u"Text"_s, u"kept"_s}, {u"Enabled"_s, false}}));
    DataComboHost host;
    host.combo->ReadProperties(bag);
    QCOMPARE(host.combo->Text(), u"kept"_s);
    QVERIFY(!host.combo->Enabled());
}

void DataComboPropertiesTest::propertiesHaveTheirDefaults()
{
    Bag bag;
    ORVDataCombo combo;
    combo.WriteProperties(bag);
    QVERIFY(bag.values.isEmpty());
    combo.setText(u"gone"_s);
    combo.setEnabled(false);
    combo.ReadProperties(bag);
    QCOMPARE(combo.Text(), QString());
    QVERIFY(combo.Enabled());
}

void DataComboPropertiesTest::changesOfPersistentPropertiesAreTold()
{
    DataComboHost host;
    host.fill(dsInput);
    QSignalSpy text(host.combo, &ORVDataCombo::textChanged);
    QSignalSpy enabled(host.combo, &ORVDataCombo::enabledChanged);
    host.combo->setText(u"one"_s);
    QCOMPARE(text.count(), 1);
    host.combo->SetListIndex(u"Temp1"_s);
    host.combo->SetListIndex(u"Temp1"_s);
    QCOMPARE(text.count(), 2);
    host.fill(dsOutput);
    QCOMPARE(text.count(), 3);
    host.combo->Clear();
    QCOMPARE(text.count(), 3);
    host.fill(dsInput);
    host.showFocused();
    host.type(u"hu"_s);
    QCOMPARE(text.count(), 5);
    host.key(Qt::Key_Return);
    QCOMPARE(text.count(), 6);
    host.combo->setEnabled(false);
    QCOMPARE(enabled.count(), 1);
}

void DataComboPropertiesTest::membersWithoutEffectHaveNone()
{
    DataComboHost host;
    host.show();
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp1"_s);
    const QImage before = host.combo->grab().toImage();
    host.combo->ResetbackColor(0x00ff00ff);
    host.combo->UpdateListWidth();
    host.combo->setFormParentHandle(-1);
    host.combo->setFormParentHandle(0x7fffffff);
    host.combo->InitStrings();
    QCOMPARE(host.combo->grab().toImage(), before);
    QCOMPARE(host.combo->ListIndex(), qint16{0});
}

void DataComboPropertiesTest::textsAreFetchedAgain()
{
    ORVDataCombo combo;
    QVERIFY(!threadPart<TextTable>().loadTime().isValid());
    combo.InitStrings();
    QVERIFY(!threadPart<TextTable>().loadTime().isValid());
    combo.ReInitializeStrings();
    QVERIFY(threadPart<TextTable>().loadTime().isValid());
}

void DataComboPropertiesTest::membersAreReachedByName()
{
    DataComboHost host;
    host.fill(dsInput);
    QVERIFY(QMetaObject::invokeMethod(host.combo, "SetListIndex", Q_ARG(QString, u"Temp2"_s)));
    QCOMPARE(host.combo->property("ListIndex").toInt(), 1);
    QCOMPARE(host.combo->property("ListCount").toInt(), 3);
    QCOMPARE(host.combo->property("Text").toString(), u"Temp2"_s);
    qint32 data = 0;
    QVERIFY(QMetaObject::invokeMethod(host.combo, "ItemData", Q_RETURN_ARG(qint32, data),
                                      Q_ARG(qint16, 1)));
    QCOMPARE(data, 12);
    QVERIFY(host.combo->setProperty("Enabled", false));
    QVERIFY(!host.combo->Enabled());
    for (const char *member :
         {"Clear()", "ResetbackColor(qint32)", "UpdateListWidth()", "setFormParentHandle(qint32)",
          "InitStrings()", "ReInitializeStrings()"})
        QVERIFY2(host.combo->metaObject()->indexOfMethod(member) >= 0, member);
}

ORVT_TEST(DataComboPropertiesTest)
#include "DataComboPropertiesTest.moc"
