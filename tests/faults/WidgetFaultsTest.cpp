// What the components do when they get no memory. Only what they take themselves fails:
// the toolkit is not made for it.

#include "editor/SteppingHost.h"
#include "faults/FailingAllocation.h"
#include "find/FindDialog.h"
#include "find/fFind.h"
#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QTimer>
#include <QtGui/QTextDocument>

#include <memory>
#include <optional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using Shortage = FailingAllocation::Shortage;

namespace {

// What the log is told while one lives.
class KeptLog
{
public:
    KeptLog()
    {
        lines.clear();
        m_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { lines += text; });
    }
    ~KeptLog() { qInstallMessageHandler(m_former); }
    Q_DISABLE_COPY_MOVE(KeptLog) // one handler

    static inline QStringList lines;

private:
    QtMessageHandler m_former;
};

} // namespace

class WidgetFaultsTest : public WidgetTest
{
    Q_OBJECT

    // Until nothing fails any more: make() makes what act() is done to, and check() is
    // told what came of it.
    static void failEach(Shortage shortage, const std::function<void()> &make,
                         const std::function<void()> &act,
                         const std::function<void(Outcome)> &check)
    {
        constexpr int many = 20'000;
        for (int call = 1; call < many; ++call) {
            make();
            const Outcome outcome = withFailingAllocation(call, shortage, act);
            check(outcome);
            if (QTest::currentTestFailed())
                qInfo("with allocation %d failing", call);
            if (QTest::currentTestFailed() || outcome == Outcome::Finished)
                return;
        }
        QFAIL("it never comes to its end");
    }
    static void shortages()
    {
        QTest::addColumn<bool>("staysShort");
        QTest::newRow("once") << false;
        QTest::newRow("from then on") << true;
    }
    static Shortage shortage()
    {
        QFETCH(const bool, staysShort);
        return staysShort ? Shortage::FromThenOn : Shortage::Once;
    }

private Q_SLOTS:
    // The memory fails when the box is empty.
    void aTextThatCannotBeColouredStays()
    {
        const QString program = u"IF Temp1 > 20\r\nFan1 = ON\r\nENDIF"_s;
        EditorHost host;
        host.list->setCodeText(program);
        std::optional<FailingAllocation> failing;
        const QTextDocument *document = host.box().document();
        const auto watch = connect(document, &QTextDocument::contentsChanged, this, [&] {
            if (!failing && document->isEmpty())
                failing.emplace(1, Shortage::Once);
        });
        host.list->Init_RichTextBox(host.settings);
        failing.reset();
        disconnect(watch);
        QVERIFY(FailingAllocation::hasFailed());
        QCOMPARE(host.marked(), u'|' + program);
        QCOMPARE(host.colourOf(u"IF"_s), -1);
        QVERIFY(host.box().updatesEnabled());
        host.type(u"x"_s);
        QCOMPARE(host.list->CodeText(), u'x' + program);
        host.list->Init_RichTextBox(host.settings);
        QCOMPARE(host.colourOf(u"ENDIF"_s), host.settings.ReservedWordColor);
    }

    // The memory fails when the box is empty, or while parts are coloured.
    void aTextThatAStepCannotColourStays_data()
    {
        QTest::addColumn<int>("call");
        for (const int call : {1, 2, 3, 5, 10, 20})
            QTest::addRow("%d", call) << call;
    }
    void aTextThatAStepCannotColourStays()
    {
        QFETCH(const int, call);
        SteppingHost host;
        host.open((colouredProgram() + u"\r\n"_s).repeated(10));
        host.colours().giveAll(); // however slow the machine is
        host.finish();
        host.typeAt(20'000, u"x y "_s);
        const QString typed = host.list->CodeText();
        std::optional<FailingAllocation> failing;
        const QTextDocument *document = host.box().document();
        const auto watch = connect(document, &QTextDocument::contentsChange, this, [&] {
            if (!failing && document->isEmpty())
                failing.emplace(call, Shortage::Once);
        });
        host.undo();
        failing.reset();
        disconnect(watch);
        QVERIFY(FailingAllocation::hasFailed());
        if (host.list->CodeText() == typed)
            host.undo(); // it stays, and so do the steps
        QVERIFY(host.list->CodeText() != typed);
        host.compareWithTheRing();
    }

    // The log tells of it; what was saved before is whole.
    void pagesThatCannotBeSavedAreToldOf_data() { shortages(); }
    void pagesThatCannotBeSavedAreToldOf()
    {
        const TestFolder folder;
        setSettingsFile(folder.path(u"settings"_s));
        std::unique_ptr<ORVTreeview> tree;
        const KeptLog log;
        int told = 0;
        failEach(
            shortage(),
            [&] {
                WriteSetting(u"Quillbox"_s, u"Logs"_s, u"3"_s);
                tree = std::make_unique<ORVTreeview>();
                tree->Nodes()->Item(u"Logs"_s)->setParent(tree->Nodes()->Item(u"Page2"_s));
                KeptLog::lines.clear();
            },
            [&] { tree.reset(); },
            [&](Outcome outcome) {
                const QString saved = ReadSetting(u"Quillbox"_s, u"Logs"_s);
                const bool isTold =
                    KeptLog::lines.join(u'\n').contains(u"pages was not saved: std::bad_alloc"_s);
                QCOMPARE(saved, isTold ? u"3"_s : u"2"_s);
                QVERIFY(!isTold || outcome == Outcome::Coped);
                told += isTold ? 1 : 0;
            });
        QVERIFY(told > 0);
    }

    // A member with ErrMsg never fails otherwise.
    void theFindDialogTellsByErrMsg_data() { shortages(); }
    void theFindDialogTellsByErrMsg()
    {
        std::unique_ptr<ORVListView> list;
        QString errMsg;
        int told = 0;
        failEach(
            shortage(),
            [&] {
                list.reset();
                renewState(); // the dialog is made anew
                list = std::make_unique<ORVListView>();
                list->setListviewType(dsCode);
                errMsg.clear();
                QTimer::singleShot(0, list.get(), [] { FindDialog::shared().reject(); });
            },
            [&] { list->ReplaceInRichtext(errMsg); },
            [&](Outcome outcome) {
                QCoreApplication::processEvents();
                QVERIFY(outcome != Outcome::Raised);
                QVERIFY(errMsg.isEmpty() || errMsg == u"std::bad_alloc"_s);
                QVERIFY(!errMsg.isEmpty() || outcome != Outcome::Finished || told > 0);
                QVERIFY(!QGuiApplication::overrideCursor());
                told += errMsg.isEmpty() ? 0 : 1;
            });
        QVERIFY(told > 0);
    }

    void theTableTellsByErrMsg_data() { shortages(); }
    void theTableTellsByErrMsg()
    {
        ORVListView list;
        list.ListItems()->Item(1)->setSubItem(1, u"a text that is wider than its column"_s);
        QString errMsg;
        int told = 0;
        failEach(
            shortage(),
            [&] {
                list.setFont(QFont(list.font().family(), 10 + told % 2));
                errMsg.clear();
            },
            [&] { list.UpdateListViewWidth(errMsg); },
            [&](Outcome outcome) {
                QVERIFY(outcome != Outcome::Raised);
                QCOMPARE(errMsg, outcome == Outcome::Finished ? QString() : u"std::bad_alloc"_s);
                told += errMsg.isEmpty() ? 0 : 1;
            });
        QVERIFY(told > 0);
    }
};

ORVT_TEST(WidgetFaultsTest)
#include "WidgetFaultsTest.moc"
