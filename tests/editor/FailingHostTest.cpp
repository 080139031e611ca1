// Each member that reads the host's collections, with a host whose collections fail.

#include "editor/EditorHost.h"
#include "support/MisbehavingHost.h"
#include "support/Raised.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/LateCall.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVDataCombo.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using Misbehaving::In;
using Misbehaving::Throws;

Q_DECLARE_METATYPE(Misbehaving::Fault)
Q_DECLARE_METATYPE(Misbehaving::Throws)

namespace {

// An editor whose variables are P1 to P10, read while all was well.
struct FailingHost : EditorHost
{
    FailingHost()
    {
        tree.SetCollectionRenamable(nullptr, &points, &constants, &inputs, &outputs, &nvis);
        list->RefillListviewWithWordList();
    }

    Misbehaving::Points points;
};

} // namespace

class FailingHostTest : public WidgetTest
{
    Q_OBJECT

    static void faults()
    {
        QTest::addColumn<Misbehaving::Fault>("fault");
        for (const Throws what : Misbehaving::all) {
            for (const In where : {In::Count, In::Item, In::Find})
                QTest::addRow("%d in %d", int(what), int(where)) << Misbehaving::Fault{what, where};
        }
    }
    // Whether reading all meets the fault.
    static bool isRead(const Misbehaving::Fault &fault) { return fault.where != In::Find; }

private Q_SLOTS:
    void refillingRaisesAndKeepsTheWords_data() { faults(); }
    void refillingRaisesAndKeepsTheWords()
    {
        QFETCH(const Misbehaving::Fault, fault);
        FailingHost host;
        const qint32 rows = host.list->ListItems()->Count();
        host.points.fault = fault;
        QCOMPARE(raisedBy([&] { host.list->RefillListviewWithWordList(); }).has_value(),
                 isRead(fault));
        QCOMPARE(host.list->ListItems()->Count(), rows);
        QVERIFY(host.list->GetColorText(u"p10"_s).endsWith(u"\\cf7 P10}"_s));
    }

    void initialisingRaisesAndKeepsTheText_data() { faults(); }
    void initialisingRaisesAndKeepsTheText()
    {
        QFETCH(const Misbehaving::Fault, fault);
        FailingHost host;
        host.list->setCodeText(u"p1 kept"_s);
        host.points.fault = fault;
        QCOMPARE(raisedBy([&] { host.list->Init_RichTextBox(host.settings); }).has_value(),
                 isRead(fault));
        QCOMPARE(host.list->CodeText().compare(u"p1 kept"_s, Qt::CaseInsensitive), 0);
        host.points.fault = {};
        host.list->Init_RichTextBox(host.settings);
    }

    void handingOverRaisesNothing_data() { faults(); }
    void handingOverRaisesNothing()
    {
        QFETCH(const Misbehaving::Fault, fault);
        FailingHost host;
        host.points.fault = fault;
        host.tree.SetCollectionRenamable(nullptr, &host.points, &host.points, &host.points,
                                         &host.points, &host.points);
        QVERIFY(host.list->GetColorText(u"p10"_s).endsWith(u"\\cf7 P10}"_s));
    }

    void familiesThatFailRaiseAndChangeNothing_data()
    {
        QTest::addColumn<Throws>("what");
        for (const Throws what : Misbehaving::all)
            QTest::addRow("%d", int(what)) << what;
    }
    void familiesThatFailRaiseAndChangeNothing()
    {
        QFETCH(const Throws, what);
        FailingHost host;
        Misbehaving::Families families;
        host.tree.setStringIndexCollection(&families);
        for (const In where :
             {In::Count, In::Item, In::Name, In::NumberFormat, In::LowerBound, In::UpperBound}) {
            families.fault = {what, where};
            QVERIFY(raisedBy([&] { host.tree.setStringIndexCollection(&families); }));
            QVERIFY(host.list->GetColorText(u"f10_1"_s).endsWith(u"\\cf6 F10_1}"_s));
        }
        families.fault = {};
        host.points.fault = {what, In::Item};
        QVERIFY(raisedBy([&] { host.tree.setStringIndexCollection(&families); }));
    }

    void wrongCountsAreNoHarm()
    {
        FailingHost host;
        Misbehaving::Families families(Misbehaving::boast);
        host.points.count = Misbehaving::boast;
        host.tree.setStringIndexCollection(&families);
        host.list->RefillListviewWithWordList();
        QVERIFY(host.list->GetColorText(u"p10 f10_1"_s).endsWith(u"\\cf7 P10 \\cf6 F10_1}"_s));
        host.points.count = -1;
        families.count = -1;
        host.tree.setStringIndexCollection(&families);
        QVERIFY(host.list->GetColorText(u"p10 f10_1"_s).endsWith(u"\\cf0 p10 \\cf0 f10_1}"_s));
    }

    void whatShowsWordsRaisesNothing_data() { faults(); }
    void whatShowsWordsRaisesNothing()
    {
        QFETCH(const Misbehaving::Fault, fault);
        FailingHost host;
        host.setText(u"p1| p2"_s);
        host.points.fault = fault;
        host.type(u" p3 \n"_s);
        host.list->TryToPopupList();
        host.key(Qt::Key_Escape);
        QVERIFY(host.list->CodeText().startsWith(u"P1 P3"_s));
        qint32 start = 0;
        qint32 wordStart = 0;
        qint32 colour = -1;
        QCOMPARE(host.list->GetWholeWord(start, wordStart, colour), u"P1"_s);
        QCOMPARE(colour, fault.where == In::Find ? 0 : host.settings.VariableColor);
        host.list->UpdateWordListItem(u"P1"_s, u"New1"_s, dsVariable);
        QVERIFY(host.list->GetColorText(u"new1"_s).endsWith(u"\\cf7 New1}"_s));
    }

    void theComboTellsByErrMsg_data() { faults(); }
    void theComboTellsByErrMsg()
    {
        QFETCH(const Misbehaving::Fault, fault);
        FailingHost host;
        ORVDataCombo combo;
        QString errMsg;
        combo.FillDataListview(dsVariable, nullptr, errMsg);
        QCOMPARE(errMsg, QString());
        host.points.fault = fault;
        combo.FillDataListview(dsVariable, nullptr, errMsg);
        QCOMPARE(!errMsg.isEmpty(), isRead(fault));
        QCOMPARE(combo.ListCount(), qint16(10));
    }

    void lateCallsReturnTheFailure_data() { faults(); }
    void lateCallsReturnTheFailure()
    {
        QFETCH(const Misbehaving::Fault, fault);
        FailingHost host;
        host.points.fault = fault;
        QVariantList none;
        QVariant result;
        const auto error = callLate(*host.list, host.list->Members(),
                                    u"RefillListviewWithWordList"_s, none, result);
        QCOMPARE(error.has_value(), isRead(fault));
    }
};

ORVT_TEST(FailingHostTest)
#include "FailingHostTest.moc"
