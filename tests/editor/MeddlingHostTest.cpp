// A host that puts in another program, or destroys the editor, in the signals that the box
// inherits and in what the editor asks, while a program is put in or a menu is made.

#include "editor/OpeningHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void addWaysIn()
{
    QTest::addColumn<EditorAct>("putIn");
    const auto add = [](const char *name, const EditorAct &act) { QTest::newRow(name) << act; };
    add("openProgram", [](EditorHost &host) { host.list->openProgram(u"temp1 = 1"_s); });
    add("openProgram, a long one", [](EditorHost &host) { host.list->openProgram(longProgram()); });
    add("openProgram of codeView",
        [](EditorHost &host) { host.list->codeView()->openProgram(longProgram()); });
    add("setCodeText", [](EditorHost &host) { host.list->setCodeText(u"temp1 = 1"_s); });
    add("setCodeTextRTF",
        [](EditorHost &host) { host.list->setCodeTextRTF(u"{\\rtf1 temp1 = 1}"_s); });
    add("Init_RichTextBox", [](EditorHost &host) { host.list->Init_RichTextBox(host.settings); });
    add("Clear", [](EditorHost &host) { host.list->Clear(); });
}

} // namespace

class MeddlingHostTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aProgramOfTheHostsStays_data() { addWaysIn(); }
    void aProgramOfTheHostsStays()
    {
        QFETCH(const EditorAct, putIn);
        OpeningHost host;
        host.list->setCodeText(u"former"_s);
        connect(&host.box(), &QPlainTextEdit::textChanged, &host.form,
                [&host, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false))
                        host.list->openProgram(u"fan1 = 2"_s);
                });
        putIn(host);
        QCOMPARE(host.list->CodeText(), u"Fan1 = 2"_s);
        QVERIFY(!host.list->IsUndoAvailable());
        host.finish();
        QCOMPARE(host.box().document()->toRawText(), u"Fan1 = 2"_s);
    }

    // Only what the user typed is finished for the user.
    void aTextOfTheHostsIsNotFinished_data()
    {
        QTest::addColumn<EditorAct>("act");
        QTest::newRow("line break")
            << EditorAct([](EditorHost &host) { QTest::keyClick(&host.box(), Qt::Key_Return); });
        QTest::newRow("paste") << EditorAct([](EditorHost &host) {
            QApplication::clipboard()->setText(u"a\r\nb"_s);
            QTest::keyClick(&host.box(), Qt::Key_V, Qt::ControlModifier);
        });
    }
    void aTextOfTheHostsIsNotFinished()
    {
        QFETCH(const EditorAct, act);
        OpeningHost host;
        host.list->setCodeText(u"former"_s);
        connect(&host.box(), &QPlainTextEdit::textChanged, &host.form,
                [&host, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false)) {
                        host.box().setText(u"temp1\r\ntemp1"_s);
                        host.box().setSelStart(7);
                    }
                });
        act(host);
        QCOMPARE(host.box().Text(), u"temp1\r\ntemp1"_s);
    }

    void theEditorMayGo_data() { addWaysIn(); }
    void theEditorMayGo()
    {
        QFETCH(const EditorAct, putIn);
        OpeningHost host;
        host.list->setCodeText(u"former"_s);
        const QPointer<ORVListView> list(host.list);
        connect(&host.box(), &QPlainTextEdit::textChanged, &host.form, [&] { delete host.list; });
        putIn(host);
        QVERIFY(!list);
    }

    void theEditorMayGoWhenItAsksForAMenu_data()
    {
        QTest::addColumn<bool>("isRedo");
        QTest::newRow("whether undo is possible") << false;
        QTest::newRow("whether redo is") << true;
    }
    void theEditorMayGoWhenItAsksForAMenu()
    {
        QFETCH(const bool, isRedo);
        EditorHost host;
        const QPointer<ORVListView> list(host.list);
        const auto destroy = [&host] {
            delete host.list;
            return true;
        };
        UndoHistory history;
        (isRedo ? history.canRedo : history.canUndo) = destroy;
        host.list->codeView()->setUndoHistory(history);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                host.box().viewport()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(host.box().viewport(), &event);
        QVERIFY(!list);
        QVERIFY(!QApplication::activePopupWidget());
    }
};

ORVT_TEST(MeddlingHostTest)
#include "MeddlingHostTest.moc"
