// Every member of every component, by its name.

#include "AllComponents.h"
#include "SampleArguments.h"

#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/SettingsStore.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

bool reachedTheMember(qint32 status)
{
    return status != UnknownMember && status != WrongArgumentCount && status != WrongArgumentType &&
           status != UnexpectedFailure;
}

QString failure(const Component &component)
{
    return component.LastError().Source() + u": "_s + component.LastError().Description();
}

} // namespace

class LateBoundTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void reachesEveryMember_data() { AllComponents::addRows(); }
    void reachesEveryMember();
    void refusesAWrongCountForEveryMember_data() { AllComponents::addRows(); }
    void refusesAWrongCountForEveryMember();
    void tellsWhatItDidToATable();
    void tellsWhatItDidToATree();
    void tellsWhatItDidToACombo();
    void takesATreesErrorForItsStatus();

private:
    static QVariant call(Component &component, const QString &member, QVariantList arguments = {})
    {
        QVariant result;
        const qint32 status = component.Invoke(member, arguments, result);
        if (status != CallSucceeded)
            qWarning("%s", qPrintable(failure(component)));
        return result;
    }

    TestFolder m_settings;
};

void LateBoundTest::init()
{
    WidgetTest::init();
    setSettingsFile(m_settings.path(u"settings"_s));
}

void LateBoundTest::reachesEveryMember()
{
    const auto component = AllComponents::component();
    for (const Member &member : component->Members().members()) {
        if (member.kind == MemberKind::Event)
            continue;
        QVariantList arguments =
            member.kind == MemberKind::Method ? SampleArguments::all(member) : QVariantList();
        QVariant result;
        if (member.call) {
            const qint32 status = component->Invoke(member.name, arguments, result);
            QVERIFY2(reachedTheMember(status), qPrintable(failure(*component)));
        }
        if (member.call && member.type.isValid() && component->LastError().Number() == 0)
            QVERIFY2(result.metaType() == member.type ||
                         member.type == QMetaType::fromType<QVariant>(),
                     qPrintable(member.name));
        if (member.put) {
            QVariantList value{SampleArguments::one(member.type)};
            const qint32 status = component->Invoke(member.name, value, result);
            QVERIFY2(reachedTheMember(status), qPrintable(failure(*component)));
        }
    }
}

void LateBoundTest::refusesAWrongCountForEveryMember()
{
    const auto component = AllComponents::component();
    for (const Member &member : component->Members().members()) {
        QVariantList arguments = SampleArguments::all(member) << 1 << 2;
        QVariant result;
        const qint32 expected =
            member.kind == MemberKind::Event ? UnknownMember : WrongArgumentCount;
        QCOMPARE(component->Invoke(member.name, arguments, result), expected);
    }
}

void LateBoundTest::tellsWhatItDidToATable()
{
    ORVListView table;
    call(table, u"ListviewType"_s, {u"dsLog"_s});
    QCOMPARE(table.ListviewType(), dsLog);
    call(table, u"ChangeListviewNumber"_s, {2});
    call(table, u"Add"_s, {QVariant(), u"extra"_s, u"Extra"_s});
    QCOMPARE(table.ListItems()->Count(), 3);
    QCOMPARE(call(table, u"FindItem"_s, {u"extra"_s}).value<ListItem *>(),
             table.ListItems()->Item(3));
    call(table, u"IsWait"_s, {true});
    call(table, u"ListviewType"_s, {qint32{dsCode}});
    call(table, u"CodeText"_s, {u"one\ntwo"_s});
    QCOMPARE(call(table, u"codetext"_s).toString(), u"one\r\ntwo"_s);
    QCOMPARE(call(table, u"GetPositionDisplay"_s).toString(), u"Row: 1, Col: 1"_s);
    QVariantList word{1, 0, 0};
    QVariant text;
    QCOMPARE(table.Invoke(u"GetWholeWord"_s, word, text), CallSucceeded);
    QCOMPARE(text.toString(), u"one"_s);
    QCOMPARE(word.at(1).toInt(), 1);
}

void LateBoundTest::tellsWhatItDidToATree()
{
    ORVTreeview tree;
    QCOMPARE(call(tree, u"GetItemKey"_s, {8}).toString(), u"Optimum Starts"_s);
    QCOMPARE(call(tree, u"GetItemsBound"_s).toInt(), 12);
    const auto keys = call(tree, u"GetLWTypeKeyCollection"_s).value<KeyedCollection<QString>>();
    QCOMPARE(keys.Item(1), u"Variables"_s);
    QCOMPARE(call(tree, u"GetPageSettings"_s).value<QList<Pages>>().size(), 1);
    Node *device = call(tree, u"Nodes"_s).value<Nodes *>()->Item(1);
    QCOMPARE(call(tree, u"GetPageNumber"_s, {QVariant::fromValue(device)}).toInt(), -1);
    call(tree, u"SelectedItem"_s, {QVariant::fromValue(device)});
    QCOMPARE(tree.SelectedItem(), device);
}

void LateBoundTest::tellsWhatItDidToACombo()
{
    ORVDataCombo combo;
    call(combo, u"Text"_s, {u"SupplyTemp"_s});
    QCOMPARE(combo.Text(), u"SupplyTemp"_s);
    QCOMPARE(call(combo, u"ListIndex"_s).toInt(), -1);
    call(combo, u"Enabled"_s, {false});
    QVERIFY(!combo.Enabled());
}

void LateBoundTest::takesATreesErrorForItsStatus()
{
    ORVTreeview tree;
    QVariantList arguments{QVariant()};
    QVariant result;
    QCOMPARE(tree.Invoke(u"GetPageNumber"_s, arguments, result), ObjectNotSet);
    QCOMPARE(tree.LastError().Number(), ObjectNotSet);
    QVERIFY(!tree.LastError().Description().isEmpty());
}

ORVT_TEST(LateBoundTest)
#include "LateBoundTest.moc"
