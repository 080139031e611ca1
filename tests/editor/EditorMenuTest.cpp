// What the commands of the editor's own context menu do, chosen in it.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QMenu>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct MenuHost : EditorHost
{
    // The menu as a right click opens it.
    QMenu *opened()
    {
        const QPoint place(5, 5);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                box().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(box().viewport(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    static QAction *entry(const QMenu &menu, const QString &name)
    {
        for (QAction *action : menu.actions()) {
            if (action->text().remove(u'&') == name)
                return action;
        }
        return nullptr;
    }
    // With the mouse. A command that cannot be chosen does nothing.
    void choose(const QString &name)
    {
        QMenu *menu = opened();
        QVERIFY(menu);
        QAction *action = entry(*menu, name);
        QVERIFY2(action, qPrintable(name));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        menu->close();
        QCoreApplication::processEvents();
    }
    bool offers(const QString &name)
    {
        QMenu *menu = opened();
        const QAction *action = menu ? entry(*menu, name) : nullptr;
        const bool isOffered = action && action->isEnabled();
        if (menu)
            menu->close();
        return isOffered;
    }
    QString clipboard() const { return QGuiApplication::clipboard()->text(); }
};

} // namespace

class EditorMenuTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cutTakesTheSelectionAndASnapshot()
    {
        MenuHost host;
        host.setText(u"a|b|c"_s);
        host.choose(u"Cut"_s);
        QCOMPARE(host.marked(), u"a|c"_s);
        QCOMPARE(host.clipboard(), u"b"_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void aHostsHistoryTakesItsPlace()
    {
        MenuHost host;
        host.setText(u"a|"_s);
        QString asked;
        bool isPossible = false;
        host.list->codeView()->setUndoHistory(UndoHistory{
            [&] { return isPossible; }, {}, [&] { asked += u'U'; }, [&] { asked += u'R'; }});
        QVERIFY(!host.offers(u"Undo"_s));
        isPossible = true;
        QVERIFY(!host.offers(u"Redo"_s));
        host.choose(u"Undo"_s);
        QCOMPARE(asked, u"U"_s);
        QTest::keyClick(&host.box(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&host.box(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(asked, u"UUR"_s);
        host.list->codeView()->setUndoHistory(std::nullopt);
        QTest::keyClick(&host.box(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(asked, u"UUR"_s);
    }

    void aHostsHistoryMayThrow()
    {
        MenuHost host;
        const auto fail = []() -> bool { throw std::runtime_error("host"); };
        host.list->codeView()->setUndoHistory(UndoHistory{fail, fail, fail, fail});
        for (int i = 0; i < 3; ++i) // both questions of the menu, and the key
            QTest::ignoreMessage(QtWarningMsg, "An event handler failed: host");
        QVERIFY(!host.offers(u"Undo"_s));
        QTest::keyClick(&host.box(), Qt::Key_Z, Qt::ControlModifier);
    }

    void copyLeavesTheText()
    {
        MenuHost host;
        QGuiApplication::clipboard()->setText(u"former"_s);
        host.setText(u"a|b|c"_s);
        host.choose(u"Copy"_s);
        QCOMPARE(host.marked(), u"a|b|c"_s);
        QCOMPARE(host.clipboard(), u"b"_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void pasteIsColouredAndTellsTheHost()
    {
        MenuHost host;
        host.setText(u"x |y|"_s);
        QGuiApplication::clipboard()->setText(u"temp1"_s);
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        host.choose(u"Paste"_s);
        QCOMPARE(host.marked(), u"x Temp1|"_s);
        QCOMPARE(host.colourOf(u"Temp1"_s), host.settings.InputColor);
        QCOMPARE(menu.size(), 1);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void pasteRefusesABackslash()
    {
        MenuHost host;
        host.setText(u"x|"_s);
        QGuiApplication::clipboard()->setText(u"a\\b"_s);
        host.choose(u"Paste"_s);
        QCOMPARE(host.marked(), u"x|"_s);
        QCOMPARE(messages().size(), 1);
    }

    void deleteTakesTheSelection()
    {
        MenuHost host;
        QGuiApplication::clipboard()->setText(u"former"_s);
        host.setText(u"a|b|c"_s);
        host.choose(u"Delete"_s);
        QCOMPARE(host.marked(), u"a|c"_s);
        QCOMPARE(host.clipboard(), u"former"_s);
        host.choose(u"Undo"_s);
        QCOMPARE(host.box().Text(), u"abc"_s);
    }

    void selectAllSelectsAll()
    {
        MenuHost host;
        host.setText(u"a\r\nb|c"_s);
        host.choose(u"Select All"_s);
        QCOMPARE(host.marked(), u"|a\r\nbc|"_s);
    }

    void undoAndRedoStepThroughTheRing()
    {
        MenuHost host;
        host.setText(u"xyz|"_s);
        host.key(Qt::Key_Backspace);
        host.key(Qt::Key_Backspace);
        QCOMPARE(host.box().Text(), u"x"_s);
        host.choose(u"Undo"_s);
        QCOMPARE(host.box().Text(), u"xyz"_s);
        host.choose(u"Redo"_s);
        QCOMPARE(host.box().Text(), u"xy"_s);
    }

    void onlyWhatCanBeDoneIsOffered()
    {
        MenuHost host;
        QGuiApplication::clipboard()->clear();
        host.setText(u"abc|"_s);
        for (const QString &name : {u"Cut"_s, u"Copy"_s, u"Delete"_s, u"Paste"_s, u"Redo"_s})
            QVERIFY2(!host.offers(name), qPrintable(name));
        QVERIFY(host.offers(u"Select All"_s));
        host.box().setSelStart(0);
        host.box().setSelLength(2);
        QGuiApplication::clipboard()->setText(u"x"_s);
        for (const QString &name : {u"Cut"_s, u"Copy"_s, u"Delete"_s, u"Paste"_s})
            QVERIFY2(host.offers(name), qPrintable(name));
        host.box().setReadOnly(true);
        QVERIFY(host.offers(u"Copy"_s));
        for (const QString &name : {u"Cut"_s, u"Delete"_s, u"Paste"_s, u"Undo"_s})
            QVERIFY2(!host.offers(name), qPrintable(name));
    }
};

ORVT_TEST(EditorMenuTest)
#include "EditorMenuTest.moc"
