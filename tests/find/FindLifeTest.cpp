// The find dialog and its surroundings: modal and beside the editor, one for a
// thread, on its screen, and what may happen to its editor.

#include "find/FindFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtGui/QTextCursor>
#include <QtGui/QWindow>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Runs while a dialog is shown modally.
void duringModal(const std::function<void(fFind &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *dialog = qobject_cast<fFind *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        act(*dialog);
    });
}

} // namespace

class FindLifeTest : public WidgetTest
{
    Q_OBJECT

private:
    static QString accessibleName(QWidget &widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }

private Q_SLOTS:
    void findInRichtextIsModalAndReturnsWhenClosed()
    {
        FindHost host;
        host.setText(u"x |T1| y T1"_s);
        QString errMsg = u"as it was"_s;
        bool wasShown = false;
        duringModal([&](fFind &dialog) {
            wasShown = true;
            QVERIFY(dialog.isModal());
            QVERIFY(!dialog.parentWidget());
            QVERIFY(!dialog.isReplaceMode());
            QTest::keyClick(&dialog, Qt::Key_Return);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        host.list->FindInRichtext(errMsg);
        QVERIFY(wasShown);
        QCOMPARE(host.marked(), u"x T1 y |T1|"_s);
        QCOMPARE(errMsg, u"as it was"_s);
        QVERIFY(!host.dialog().isVisible());
    }

    void replaceInRichtextOpensToReplace()
    {
        FindHost host;
        host.setText(u"|a| b"_s);
        QString errMsg;
        duringModal([](fFind &dialog) {
            QVERIFY(dialog.isReplaceMode());
            dialog.reject();
        });
        host.list->ReplaceInRichtext(errMsg);
        QCOMPARE(errMsg, QString());
    }

    void thereIsOneDialogForAllEditorsOfAThread()
    {
        FindHost host;
        FindHost second;
        const QPointer<fFind> first = &host.dialog();
        QString errMsg;
        for (ORVListView *list : {host.list, second.list, host.list}) {
            fFind *shown = nullptr;
            duringModal([&shown](fFind &dialog) {
                shown = &dialog;
                dialog.reject();
            });
            list->FindInRichtext(errMsg);
            QCOMPARE(shown, first);
        }
    }

    void thePointerIsTheUsualOne()
    {
        FindHost host;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        QString errMsg;
        bool isUsual = false;
        duringModal([&isUsual](fFind &dialog) {
            isUsual = !QGuiApplication::overrideCursor();
            dialog.reject();
        });
        host.list->FindInRichtext(errMsg);
        QVERIFY(isUsual);
    }

    void aSecondCallMeanwhileGoesOverToItsEditor()
    {
        FindHost host;
        FindHost second;
        second.setText(u"|x a"_s);
        QString errMsg;
        duringModal([&](fFind &dialog) {
            second.list->ReplaceInRichtext(errMsg); // returns at once
            QVERIFY(dialog.isVisible() && dialog.isReplaceMode());
            second.enter(0, u"a"_s);
            second.findNext();
            dialog.reject();
        });
        host.list->FindInRichtext(errMsg);
        QCOMPARE(second.marked(), u"x |a|"_s);
        QVERIFY(!host.dialog().isVisible());
    }

    void shownBesideItBecomesModalWhenAskedTo()
    {
        FindHost host;
        host.open(u"x"_s);
        QVERIFY(!host.dialog().isModal());
        QString errMsg;
        bool wasModal = false;
        duringModal([&wasModal](fFind &dialog) {
            wasModal = dialog.isModal();
            dialog.reject();
        });
        host.list->FindInRichtext(errMsg);
        QVERIFY(wasModal);
        host.reopen();
        QVERIFY(!host.dialog().isModal());
    }

    void itStaysAboveTheWindowOfItsEditor()
    {
        FindHost host;
        FindHost second;
        const auto above = [](const fFind &dialog) {
            return dialog.windowHandle()->transientParent();
        };
        QString errMsg;
        for (FindHost *editor : {&host, &second, &host}) {
            const QWindow *window = editor->form.windowHandle();
            editor->list->showFind();
            QCOMPARE(above(editor->dialog()), window);
            editor->dialog().reject();
            const QWindow *modallyAbove = nullptr;
            duringModal([&](fFind &dialog) {
                modallyAbove = above(dialog);
                dialog.reject();
            });
            editor->list->FindInRichtext(errMsg);
            QCOMPARE(modallyAbove, window);
        }
    }

    void besideItTheEditorCanBeUsed()
    {
        FindHost host;
        host.open(u"|x a a"_s);
        host.enter(0, u"a"_s);
        host.findNext();
        host.form.activateWindow();
        host.box().setFocus();
        QTRY_VERIFY(host.box().hasFocus());
        host.key(Qt::Key_Delete);
        QCOMPARE(host.marked(), u"x | a"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x  |a|"_s);
    }

    void aTableHasNothingToFindIn()
    {
        FindHost host;
        host.list->setListviewType(dsInput);
        QString errMsg;
        host.list->FindInRichtext(errMsg); // would not return
        host.list->showFind();
        QVERIFY(!host.dialog().isVisible());
    }

    void itClosesWhenTheEditorIsDestroyed()
    {
        FindHost host;
        auto *other = new ORVListView;
        other->setListviewType(dsCode);
        other->setCodeText(u"a"_s);
        other->show();
        other->showFind(true);
        QTRY_VERIFY(host.dialog().isActiveWindow());
        delete other;
        QVERIFY(!host.dialog().isVisible());
        host.dialog().show(); // whoever shows it now
        host.combo(0).setEditText(u"a"_s);
        for (int i : {0, 2, 3})
            host.click(host.button(i));
        QCOMPARE(messages().size(), 0);
    }

    void itClosesWhenAnEditorThatWasNotShownIsDestroyed()
    {
        FindHost host;
        auto *box = new RichTextBox;
        host.dialog().Open(*box, false);
        host.dialog().show();
        delete box; // which is never hidden
        QVERIFY(!host.dialog().isVisible());
    }

    void destroyedWhileItIsModalTheCallReturns()
    {
        FindHost host;
        auto *other = new ORVListView;
        other->setListviewType(dsCode);
        other->show();
        duringModal([other](fFind &) { delete other; });
        QString errMsg;
        other->FindInRichtext(errMsg);
        QVERIFY(!host.dialog().isVisible());
    }

    void itClosesWithTheEditorsWindow()
    {
        FindHost host;
        host.open(u"a"_s);
        host.form.close();
        QVERIFY(!host.dialog().isVisible());
    }

    void itClosesWhenTheEditorBecomesATable()
    {
        FindHost host;
        host.open(u"a"_s);
        host.list->setListviewType(dsOutput);
        QVERIFY(!host.dialog().isVisible());
    }

    void aFormerEditorMayGo()
    {
        FindHost host;
        host.open(u"|x a"_s);
        {
            FindHost second;
            second.open(u"|y a"_s);
            host.reopen();
        }
        host.reopen();
        host.enter(0, u"a"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |a|"_s);
    }

    void aFreshThreadStateHasADialogOfItsOwn()
    {
        FindHost host;
        host.open(u"a"_s);
        const fFind *outer = &host.dialog();
        {
            const ThreadState::Fresh inner;
            QVERIFY(&FindDialog::shared() != outer);
        }
        QCOMPARE(&host.dialog(), outer);
        QVERIFY(outer->isVisible());
    }

    void staysOnTheEditorsScreenAndOffTheMatch()
    {
        FindHost host;
        QString program;
        for (int i = 0; i < 60; ++i)
            program += u"line %1 with a word\r\n"_s.arg(i);
        const QRect screen = host.form.screen()->availableGeometry();
        for (const QPoint corner : {QPoint(0, 0), QPoint(400, 300), QPoint(-300, 500)}) {
            host.form.move(corner);
            host.open(program);
            host.enter(0, u"word"_s);
            for (int i = 0; i < 70; ++i) {
                host.findNext();
                const QRect dialog = host.dialog().frameGeometry();
                QVERIFY(screen.contains(dialog));
                QRect caret = host.box().cursorRect();
                caret.translate(host.box().viewport()->mapToGlobal(QPoint()));
                QVERIFY2(!dialog.intersects(caret), qPrintable(host.status()));
            }
            host.dialog().close();
        }
    }

    void showingTheFieldsKeepsItOnTheScreen()
    {
        FindHost host;
        host.open(u"a"_s);
        const QRect screen = host.form.screen()->availableGeometry();
        host.dialog().move(screen.left(), screen.bottom() - host.dialog().height());
        host.replace();
        QVERIFY(screen.contains(host.dialog().frameGeometry()));
    }

    void whereTheUserPutsItItStays()
    {
        FindHost host;
        host.form.move(0, 0);
        host.open(u"|x a a"_s);
        host.dialog().move(10, 420);
        host.enter(0, u"a"_s);
        host.findNext();
        QCOMPARE(host.dialog().pos(), QPoint(10, 420));
    }

    void itIsAboveTheEditorsWindow()
    {
        FindHost host;
        host.open(u"a"_s);
        QCOMPARE(host.dialog().windowHandle()->transientParent(), host.form.windowHandle());
    }

    void controlsHaveNamesForScreenReaders()
    {
        FindHost host;
        host.open(u"a"_s);
        QCOMPARE(accessibleName(host.combo(0)), u"Find What"_s);
        QCOMPARE(accessibleName(host.combo(1)), u"Replace With"_s);
        QCOMPARE(accessibleName(host.button(0)), u"Find Next"_s);
        QCOMPARE(accessibleName(host.button(1)), u"Close"_s);
        QCOMPARE(accessibleName(host.button(2)), u"Replace"_s); // though it shows dots
        QCOMPARE(accessibleName(host.button(3)), u"Replace All"_s);
        QCOMPARE(accessibleName(host.option(0)), u"Find Whole Word Only"_s);
        QCOMPARE(accessibleName(host.option(1)), u"Match Case"_s);
        QCOMPARE(accessibleName(host.dialog()), u"Find"_s);
    }
};

ORVT_TEST(FindLifeTest)
#include "FindLifeTest.moc"
