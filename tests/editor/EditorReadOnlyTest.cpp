// A program that the user may not edit: one that is read-only, and one that is hidden.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorReadOnlyTest : public WidgetTest
{
    Q_OBJECT

private:
    static constexpr auto program = "IF x\n    temp1 = 2\nENDIF";

    static QString text() { return QString::fromLatin1(program).replace(u"\n"_s, u"\r\n"_s); }

    // Every key there is, with every modifier.
    static void pressAll(EditorHost &host)
    {
        const QList<Qt::KeyboardModifiers> states{Qt::NoModifier, Qt::ShiftModifier,
                                                  Qt::ControlModifier, Qt::AltModifier,
                                                  Qt::ControlModifier | Qt::ShiftModifier};
        const QList<int> keys{Qt::Key_Backspace, Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return,
                              Qt::Key_Enter,     Qt::Key_Delete,    Qt::Key_Insert,  Qt::Key_Space,
                              Qt::Key_A,         Qt::Key_C,         Qt::Key_D,       Qt::Key_K,
                              Qt::Key_U,         Qt::Key_V,         Qt::Key_X,       Qt::Key_Y,
                              Qt::Key_Z,         Qt::Key_ParenRight};
        for (const Qt::KeyboardModifiers state : states) {
            for (const int key : keys) {
                if (state == Qt::ControlModifier && (key == Qt::Key_Tab || key == Qt::Key_Backtab))
                    continue; // leaves the editor
                host.key(key, state);
            }
        }
    }

private Q_SLOTS:
    void noKeyEdits_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::newRow("in the indent") << 8 << 0;
        QTest::newRow("behind the indent") << 10 << 0;
        QTest::newRow("behind a word") << 15 << 0;
        QTest::newRow("a word selected") << 10 << 5;
        QTest::newRow("lines selected") << 2 << 20;
        QTest::newRow("at the end") << 28 << 0;
    }
    void noKeyEdits()
    {
        QFETCH(const int, start);
        QFETCH(const int, length);
        EditorHost host;
        host.list->setCodeText(text());
        host.box().setReadOnly(true);
        QGuiApplication::clipboard()->setText(u"pasted"_s);
        QSignalSpy changed(&host.box(), &RichTextBox::Change);
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        const qint32 newest = host.ring().UndoNewest();
        host.box().setSelStart(start);
        host.box().setSelLength(length);
        pressAll(host);
        QCOMPARE(host.box().Text(), text());
        QCOMPARE(changed.size(), 0);
        QCOMPARE(menu.size(), 0);
        QCOMPARE(host.ring().UndoNewest(), newest);
    }

    void undoAndRedoByKeyDoNothing()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        host.type(u"a b c "_s);
        host.key('Z', Qt::ControlModifier);
        const QString before = host.box().Text();
        QVERIFY(host.list->IsUndoAvailable() && host.list->IsRedoAvailable());
        host.box().setReadOnly(true);
        host.key('Z', Qt::ControlModifier);
        QCOMPARE(host.box().Text(), before);
        host.key('Y', Qt::ControlModifier);
        QCOMPARE(host.box().Text(), before);
        QString errMsg;
        host.list->Undo(errMsg); // the host's own doing
        QVERIFY(host.box().Text() != before);
    }

    void whatDoesNotEditStillWorks()
    {
        EditorHost host;
        host.list->setCodeText(text());
        host.box().setReadOnly(true);
        QSignalSpy analyze(host.list, &ORVListView::QueryAnalyze);
        host.key(Qt::Key_F6);
        QCOMPARE(analyze.size(), 1);
        host.key('A', Qt::ControlModifier);
        host.key('C', Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromLatin1(program));
    }

    void cuttingCopiesNothing()
    {
        EditorHost host;
        host.setText(u"|ab|c"_s);
        host.box().setReadOnly(true);
        QGuiApplication::clipboard()->setText(u"old"_s);
        host.key('X', Qt::ControlModifier);
        host.key(Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"old"_s);
        QCOMPARE(host.marked(), u"|ab|c"_s);
    }

    void theWordListDoesNotOpen()
    {
        EditorHost host;
        host.setText(u"te|"_s);
        host.box().setReadOnly(true);
        host.key(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(!host.wordList().isVisible());
        QVERIFY(host.box().hasFocus());
        host.setText(u"temp1|"_s); // which would be coloured
        host.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(host.colourAt(0), ColouredText::automatic);
    }

    void anInputMethodEditsNothing()
    {
        EditorHost host;
        host.setText(u"|ab|c"_s);
        host.box().setReadOnly(true);
        QInputMethodEvent event(u"x"_s, {});
        event.setCommitString(u"y"_s, -1, 1);
        QCoreApplication::sendEvent(&host.box(), &event);
        QCOMPARE(host.marked(), u"|ab|c"_s);
    }

    void aMenuThatIsOpenEditsNothingAnyMore()
    {
        EditorHost host;
        host.setText(u"|ab|c"_s);
        host.type(u"x y "_s);
        host.key('Z', Qt::ControlModifier);
        host.key('A', Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(u"pasted"_s);
        const QString before = host.marked();
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                host.box().mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(host.box().viewport(), &event);
        auto *menu = host.box().findChild<QMenu *>();
        QVERIFY(menu);
        host.box().setReadOnly(true);
        for (QAction *action : menu->actions()) {
            const bool keeps =
                action->text().contains(u"opy"_s) || action->text().remove(u'&') == u"Select All"_s;
            if (!action->isSeparator() && !keeps)
                action->trigger();
        }
        menu->close();
        QCOMPARE(host.marked(), before);
    }

    void aHiddenEditorHasNoFocusAndNoKeys_data()
    {
        QTest::addColumn<bool>("isParentHidden");
        QTest::newRow("the box") << false;
        QTest::newRow("the component") << true;
    }
    void aHiddenEditorHasNoFocusAndNoKeys()
    {
        QFETCH(const bool, isParentHidden);
        const auto show = [isParentHidden](EditorHost &host, bool visible) {
            if (isParentHidden)
                host.list->setVisible(visible);
            else
                host.list->setRichTextVisible(visible);
        };
        EditorHost host;
        for (int i = 0; i < 2; ++i) { // shown again and hidden again
            host.setText(u"x|"_s);
            host.box().setFocus();
            show(host, false);
            QVERIFY(!host.box().hasFocus());
            QCOMPARE(host.before->focusPolicy(), Qt::StrongFocus);
            QCOMPARE(host.after->focusPolicy(), Qt::StrongFocus);
            if (!isParentHidden) { // the read button comes next
                QCOMPARE(QApplication::focusWidget()->objectName(), u"ImgRead"_s);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QVERIFY(host.after->hasFocus());
            QTest::keyClick(host.form.windowHandle(), Qt::Key_A);
            QCOMPARE(host.box().Text(), u"x"_s);
            QCOMPARE(host.after->text(), u"a"_s);
            show(host, true);
            host.box().setFocus();
            QVERIFY(host.box().hasFocus());
            QCOMPARE(host.after->focusPolicy() & Qt::TabFocus, 0);
        }
    }

    void aHiddenEditorHasNoFocusThoughNobodyElseTakesIt()
    {
        EditorHost host;
        host.before->hide();
        host.after->hide();
        host.setText(u"x|"_s);
        host.list->setRichTextVisible(false);
        QVERIFY(!host.box().hasFocus());
        QTest::keyClick(host.form.windowHandle(), Qt::Key_A);
        QCOMPARE(host.box().Text(), u"x"_s);
    }

    void aWindowThatIsHiddenKeepsItsFocus()
    {
        EditorHost host;
        host.form.hide();
        QCOMPARE(host.form.focusWidget(), &host.box());
        host.form.show();
        QCOMPARE(host.form.focusWidget(), &host.box());
    }
};

ORVT_TEST(EditorReadOnlyTest)
#include "EditorReadOnlyTest.moc"
