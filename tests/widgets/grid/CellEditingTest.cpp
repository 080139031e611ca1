#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

#include <QtGui/QClipboard>
#include <QtGui/QInputMethodEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class CellEditingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isOffAtFirst()
    {
        const ShownList shown(3, 3);
        QVERIFY(!shown->grid()->editsCells());
        QVERIFY(!shown->tabKeyNavigation());
        shown->selectionModel()->setCurrentIndex(shown->model()->index(1, 1),
                                                 QItemSelectionModel::ClearAndSelect |
                                                     QItemSelectionModel::Rows);
        shown.key(Qt::Key_Delete);
        shown.key(Qt::Key_Return);
        shown.key(Qt::Key_X);
        QVERIFY(!shown->viewport()->findChild<QLineEdit *>());
        QCOMPARE(shown->currentIndex(), shown->model()->index(1, 1));
        QVERIFY(!shown->model()->flags(shown->model()->index(0, 1)).testFlag(Qt::ItemIsEditable));
    }

    void typingBeginsAndEnterGoesDown()
    {
        ShownGrid shown;
        shown.goTo(2, 1);
        shown.type(u"Pu"_s);
        QCOMPARE(shown.typed(), u"Pu"_s);
        shown.type(u"mp"_s);
        shown.key(Qt::Key_Return);
        shown.key(Qt::Key_F2); // what was entered comes first
        QCOMPARE(shown.take(), u"ask 2 1 Pump, 2 1 >Pump, told"_s);
        QCOMPARE(shown.current(), u"3 1"_s);
        QCOMPARE(shown.typed(), QString());
    }

    // Some systems report AltGr as Ctrl and Alt together.
    void aCharacterWithAltGrBeginsToo()
    {
        ShownGrid shown;
        shown.goTo(2, 1);
        const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
        QTest::sendKeyEvent(QTest::Click, shown.window, Qt::Key_At, u'@', altGr);
        QCOMPARE(shown.typed(), u"@"_s);
        shown.key(Qt::Key_Escape);
        QTest::sendKeyEvent(QTest::Click, shown.window, Qt::Key_Q, u'q', Qt::AltModifier);
        QCOMPARE(shown.typed(), u"(closed)"_s);
    }

    void tabGoesRightAndLeavesAtTheEnd()
    {
        ShownGrid shown;
        QLineEdit next(&shown.form);
        next.show();
        QWidget::setTabOrder(shown.list, &next);
        shown.goTo(1, 1);
        shown.type(u"a"_s);
        shown.key(Qt::Key_Tab);
        shown.type(u"7"_s);
        shown.key(Qt::Key_Tab);
        QCoreApplication::processEvents();
        QCOMPARE(shown.take(), u"ask 1 1 a, 1 1 >a, told, ask 1 2 7, 1 2 >7, told"_s);
        QCOMPARE(shown.current(), u"1 3"_s);
        shown.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(shown.current(), u"1 2"_s);
        shown.goTo(1, 5);
        shown.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &next);
    }

    void f2AndADoubleClickEditWhatIsThere()
    {
        ShownGrid shown;
        shown.set(2, 1, u"Pump"_s);
        shown.goTo(2, 1);
        shown.key(Qt::Key_F2);
        QCOMPARE(shown.typed(), u"Pump"_s);
        shown.type(u"1"_s);
        shown.key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(shown.take(), QString());
        QCOMPARE(shown.text(2, 1), u"Pump"_s);
        QCOMPARE(shown.current(), u"2 1"_s);
        shown.click(shown.cell(2, 2));
        shown.doubleClick(shown.cell(2, 2));
        QCOMPARE(shown.typed(), u"Pump"_s);
        shown.type(u"2"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(2, 1), u"Pump2"_s);
    }

    void anEditorThatChangesNothingTellsNothing()
    {
        ShownGrid shown;
        shown.set(2, 2, u"?"_s); // the program's, no number
        shown.goTo(2, 2);
        shown.key(Qt::Key_F2);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.take(), QString());
        QCOMPARE(shown.current(), u"3 2"_s);
    }

    void cellsThatAreNotEditedAreTheLists()
    {
        ShownGrid shown;
        shown.goTo(2, 0);
        shown.key(Qt::Key_Delete);
        shown.type(u"T"_s); // goes to the next row that begins with it
        QCOMPARE(shown.typed(), u"(closed)"_s);
        QCOMPARE(shown.current(), u"3 0"_s);
        shown.key(Qt::Key_F2);
        QCOMPARE(shown.typed(), u"Text 3"_s); // the label
        shown.key(Qt::Key_Escape);
        QCOMPARE(shown.take(), QString());
    }

    void anInputMethodBeginsToo()
    {
        ShownGrid shown;
        const auto tell = [&shown](const QString &begun, const QString &chosen) {
            QInputMethodEvent event(begun, {});
            event.setCommitString(chosen);
            QCoreApplication::sendEvent(shown.list, &event);
        };
        shown.goTo(2, 1);
        tell({}, u"\u00e9"_s);
        QCOMPARE(shown.typed(), u"\u00e9"_s);
        shown.type(u"t"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(2, 1), u"\u00e9t"_s);
        tell(u"ka"_s, {});
        QCOMPARE(shown.typed(), QString());
        QInputMethodEvent chosen;
        chosen.setCommitString(u"\u304b"_s);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &chosen);
        QCOMPARE(shown.typed(), u"\u304b"_s);
        shown.key(Qt::Key_Escape);
        shown.goTo(2, 0); // not edited
        QInputMethodEvent refused;
        refused.setCommitString(u"T"_s);
        QCoreApplication::sendEvent(shown.list, &refused);
        QVERIFY(!refused.isAccepted());
        QCOMPARE(shown.typed(), u"(closed)"_s);
    }

    void aTableWithoutRulesIsNoGrid()
    {
        ShownGrid shown;
        QVERIFY(shown.grid->enterText(shown.item(1), 1, u"a"_s));
        QVERIFY(shown->tabKeyNavigation());
        shown.grid->setTable(u"Code"_s);
        QVERIFY(!shown->tabKeyNavigation());
        QLineEdit next(&shown.form);
        next.show();
        QWidget::setTabOrder(shown.list, &next);
        QGuiApplication::clipboard()->setText(u"b"_s);
        shown.goTo(1, 1);
        shown.take();
        shown.key(Qt::Key_Return);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        shown.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown.current(), u"1 1"_s);
        QCOMPARE(shown.take(), QString());
        QCOMPARE(shown.note(), QString());
        shown.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &next);
        shown.grid->setTable(u"Points"_s);
        QVERIFY(shown->tabKeyNavigation());
    }

    void tabIsTheHostsAgain()
    {
        ShownGrid shown;
        shown.grid->setEditsCells(false);
        QVERIFY(!shown->tabKeyNavigation());
        shown->setTabKeyNavigation(true);
        shown.grid->setEditsCells(true);
        QVERIFY(shown->tabKeyNavigation());
        shown.grid->setEditsCells(false);
        QVERIFY(shown->tabKeyNavigation());
    }
};

ORVT_TEST(CellEditingTest)
#include "CellEditingTest.moc"
