#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

#include <QtGui/QClipboard>
#include <QtGui/QInputMethodEvent>

#include <stdexcept>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void failEditing()
{
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: host");
    throw std::runtime_error("host");
}

} // namespace

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

    void whatIsRefusedStaysToBeCorrected()
    {
        ShownGrid shown;
        shown.goTo(2, 2);
        shown.type(u"120"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.take(), u"refused 2 2 The number must not be above 100."_s);
        QCOMPARE(shown.current(), u"2 2"_s);
        QCOMPARE(shown.typed(), u"120"_s);
        QCOMPARE(shown.note(), u"The number must not be above 100."_s);
        QCOMPARE(shown.field<QAbstractSpinBox>()->accessibleDescription(), shown.note());
        shown.key(Qt::Key_Backspace);
        QCOMPARE(shown.note(), QString());
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.take(), u"ask 2 2 12, 2 2 >12, told"_s);
        QCOMPARE(shown.current(), u"3 2"_s);
    }

    void theHostMayRefuseAndChange()
    {
        ShownGrid shown;
        shown.answer = [](QString &text, QString &refusal) {
            if (text == u"Fan"_s)
                refusal = u"There is a fan already."_s;
            text = text.toUpper();
        };
        shown.goTo(1, 1);
        shown.type(u"Fan"_s);
        shown.click(shown.cell(4, 1)); // not only by Enter
        QCOMPARE(shown.take(), u"ask 1 1 Fan, refused 1 1 There is a fan already."_s);
        QCOMPARE(shown.typed(), u"Fan"_s);
        QCOMPARE(shown.note(), u"There is a fan already."_s);
        shown.type(u"2"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.take(), u"ask 1 1 Fan2, 1 1 >FAN2, told"_s);
    }

    void escapeLeavesTheCellAfterARefusal()
    {
        ShownGrid shown;
        shown.set(2, 2, u"5"_s);
        shown.goTo(2, 2);
        shown.type(u"x"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.typed(), u"x"_s);
        shown.key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(shown.note(), QString());
        QCOMPARE(shown.text(2, 2), u"5"_s);
        QCOMPARE(shown.typed(), u"(closed)"_s);
    }

    void editorsFitTheirKind()
    {
        ShownGrid shown;
        shown.set(1, 2, u"21.5"_s);
        shown.goTo(1, 2);
        shown.key(Qt::Key_F2);
        QVERIFY(shown.field<QAbstractSpinBox>());
        shown.key(Qt::Key_Up);
        shown.key(Qt::Key_Tab);
        QCoreApplication::processEvents();
        shown.key(Qt::Key_F2);
        auto *choice = shown.field<QComboBox>();
        QVERIFY(choice);
        QCOMPARE(choice->count(), 2);
        shown.type(u"manual"_s);
        shown.key(Qt::Key_Tab);
        QCoreApplication::processEvents();
        shown.key(Qt::Key_F2);
        QVERIFY(shown.field<QCheckBox>());
        shown.key(Qt::Key_Space);
        QCOMPARE(shown.field<QCheckBox>()->text(), u"Yes"_s);
        shown.key(Qt::Key_Tab);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(1, 2), u"22.5"_s);
        QCOMPARE(shown.text(1, 3), u"Manual"_s);
        QCOMPARE(shown.text(1, 4), u"Yes"_s);
        QCOMPARE(shown.current(), u"1 5"_s);
    }

    void spaceChangesYesAndNo()
    {
        ShownGrid shown;
        shown.goTo(1, 4);
        shown.key(Qt::Key_Space);
        QCOMPARE(shown.text(1, 4), u"Yes"_s);
        shown.key(Qt::Key_Space);
        QCOMPARE(shown.text(1, 4), u"No"_s);
        shown.type(u"y"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(1, 4), u"Yes"_s);
    }

    void namesOfPointsComeFromTheHost()
    {
        ShownGrid shown;
        shown.goTo(1, 5);
        shown.type(u"Any"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(1, 5), u"Any"_s);
        shown.grid->setPointNames([] { return QStringList{u"Fan1"_s, u"Temp1"_s}; });
        shown.goTo(2, 5);
        shown.type(u"temp1"_s);
        QVERIFY(shown.field<QComboBox>());
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(2, 5), u"Temp1"_s);
        QVERIFY(!shown.grid->enterText(shown.item(3), 5, u"Temp2"_s));
        QCOMPARE(shown.note(), u"There is no point of this name."_s);
    }

    void deleteClearsTheColumnOfTheSelectedRows()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        for (int row = 1; row <= 5; ++row)
            shown.set(row, 2, QString::number(row));
        shown.goTo(2, 2);
        shown.key(Qt::Key_Down, Qt::ShiftModifier);
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.texts(2), u"1|||4|5"_s);
        QCOMPARE(shown.take(), u"ask 2 2 , ask 3 2 , 2 2 2>, 3 2 3>, told"_s);
    }

    void fillsDownAndAll()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        shown.set(2, 2, u"7"_s);
        shown.goTo(2, 2);
        shown.key(Qt::Key_Down, Qt::ShiftModifier);
        shown.key(Qt::Key_Down, Qt::ShiftModifier);
        shown.key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(shown.texts(2), u"|7|7|7|"_s);
        shown.goTo(5, 2);
        shown.key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(shown.texts(2), u"|7|7|7|7"_s);
        shown.goTo(1, 2);
        shown.key(Qt::Key_Down, Qt::ShiftModifier);
        shown.type(u"9"_s);
        shown.key(Qt::Key_Return, Qt::ControlModifier);
        QCoreApplication::processEvents();
        QCOMPARE(shown.texts(2), u"9|9|7|7|7"_s);
        QCOMPARE(shown->selectionModel()->selectedRows().size(), 2);
    }

    void oneRefusalRefusesAll()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        shown.answer = [count = 0](QString &, QString &refusal) mutable {
            if (++count == 2)
                refusal = u"Not here."_s;
        };
        for (int row = 1; row <= 3; ++row)
            shown.set(row, 2, u"1"_s);
        shown->selectAll();
        shown.goTo(1, 2);
        shown->selectAll();
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.texts(2), u"1|1|1||"_s);
        QCOMPARE(shown.note(), u"Not here."_s);
        QCOMPARE(shown.take(), u"ask 1 2 , ask 2 2 , ask 3 2 , refused 2 2 Not here."_s);
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.note(), QString());
    }

    void rulesBelongToTables()
    {
        ShownGrid shown;
        QVERIFY(shown->model()->flags(shown->model()->index(0, 1)).testFlag(Qt::ItemIsEditable));
        shown.grid->setTable(u"Others"_s);
        QCOMPARE(shown.grid->rule(1).kind, CellRule::NotEdited);
        shown.goTo(1, 1);
        shown.type(u"x"_s);
        QCOMPARE(shown.typed(), u"(closed)"_s);
        QVERIFY(!shown.grid->editCell(shown.item(1), 1));
        shown.grid->setTable(u"Points"_s);
        shown->ColumnHeaders()->Clear();
        for (int column = 6; column >= 1; --column)
            shown->ColumnHeaders()->Add(0, u"Column%1"_s.arg(column), u"x"_s);
        QCOMPARE(shown.grid->rule(4).kind, CellRule::Text);
        QCOMPARE(shown.grid->rule(5).kind, CellRule::NotEdited);
        QCOMPARE(shown.grid->rule(6).kind, CellRule::NotEdited);
        QCOMPARE(shown.grid->rule(-1).kind, CellRule::NotEdited);
    }

    void whatAViewSetsIsAskedFor()
    {
        ShownGrid shown;
        QAbstractItemModel &model = *shown->model();
        QVERIFY(model.setData(model.index(0, 2), u"12"_s));
        QVERIFY(!model.setData(model.index(1, 2), u"x"_s));
        QCOMPARE(shown.texts(2), u"12||||"_s);
        QCOMPARE(shown.take(), u"ask 1 2 12, 1 2 >12, told, refused 2 2 This is not a number."_s);
    }

    void rowsOfOtherListsAreNone()
    {
        ShownGrid shown;
        const ShownGrid other(9);
        const auto enter = [&](ListItem *item, qint16 column) {
            return errorOf([&] { shown.grid->enterText(item, column, u"x"_s); });
        };
        QCOMPARE(enter(other.item(2), 1), InvalidCall);
        QCOMPARE(enter(other.item(9), 1), InvalidCall);
        QCOMPARE(errorOf([&] { shown.grid->editCell(other.item(2), 1); }), InvalidCall);
        ListItem *gone = shown.item(5);
        shown->ListItems()->Remove(5);
        QCOMPARE(enter(gone, 1), ObjectNotSet);
        QCOMPARE(errorOf([&] { shown.grid->editCell(gone, 1); }), ObjectNotSet);
        QVERIFY(!shown.grid->enterText(nullptr, 1, u"x"_s));
        QVERIFY(!shown.grid->enterText(shown.item(1), 6, u"x"_s));
        QVERIFY(!shown.grid->editCell(nullptr, 1));
        QVERIFY(!shown.grid->editCell(shown.item(1), -1));
        QCOMPARE(shown.texts(1) + other.texts(1), u"|||"_s + u"||||||||"_s);
        QCOMPARE(shown.typed(), u"(closed)"_s);
    }

    // A host that lets the user go on while it asks somebody.
    void whatIsEnteredWhileTheHostIsAskedComesAfterwards()
    {
        ShownGrid shown;
        shown.answer = [&shown, isFirst = true](QString &, QString &refusal) mutable {
            if (!std::exchange(isFirst, false))
                return;
            shown.goTo(3, 1);
            shown.type(u"Fan"_s);
            shown.key(Qt::Key_Return);
            QCoreApplication::processEvents();
            shown.goTo(4, 4);
            shown.key(Qt::Key_Space);
            refusal = u"Not this."_s;
            QVERIFY(!shown.grid->enterText(shown.item(5), 1, u"no"_s));
        };
        shown.goTo(1, 1);
        shown.type(u"Pump"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.typed(), u"Pump"_s);
        QCOMPARE(shown.note(), u"Not this."_s);
        QCOMPARE(shown.texts(1), u"||||"_s);
        shown.key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(shown.texts(1), u"||Fan||"_s);
        QCOMPARE(shown.text(4, 4), u"Yes"_s);
    }

    void whatIsRefusedIsKeptWhereNoEditorCanOpen()
    {
        ShownGrid shown;
        shown.answer = [&shown](QString &, QString &refusal) {
            shown->setEnabled(false);
            refusal = u"Not now."_s;
        };
        shown.goTo(2, 1);
        shown.type(u"Pump"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.typed(), u"(closed)"_s);
        QCOMPARE(shown.note(), u"Not now."_s);
        shown.answer = {};
        shown->setEnabled(true);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the former note
        QCOMPARE(shown.typed(), u"Pump"_s);
        QCOMPARE(shown.note(), u"Not now."_s);
        shown.key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(shown.text(2, 1), QString());
    }

    void whatIsRefusedIsKeptWhileNothingIsEdited()
    {
        ShownGrid shown;
        shown.goTo(2, 2);
        shown.type(u"120"_s);
        shown.grid->setEditsCells(false);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(shown.note(), u"This cell cannot be edited."_s);
        shown.grid->setEditsCells(true);
        shown.key(Qt::Key_F2);
        QCOMPARE(shown.typed(), u"120"_s);
        shown.key(Qt::Key_Escape);
        shown.key(Qt::Key_F2);
        QCOMPARE(shown.typed(), QString());
    }

    void fillingTellsWhichCellIsNotEdited()
    {
        ShownGrid shown;
        shown.grid->setSelectsCells(true);
        shown.goTo(2, 1);
        shown.key(Qt::Key_Space, Qt::ShiftModifier);
        shown->selectionModel()->setCurrentIndex(shown->model()->index(1, 1),
                                                 QItemSelectionModel::NoUpdate);
        shown.type(u"7"_s);
        shown.key(Qt::Key_Return, Qt::ControlModifier);
        QCoreApplication::processEvents();
        QCOMPARE(shown.typed(), u"7"_s);
        QCOMPARE(shown.note(), u"Text 2, Header 1: This cell cannot be edited.\n"
                               "Text 2, Header 4: This is not in the list.\n"
                               "Text 2, Header 5: This is neither Yes nor No."_s);
        QCOMPARE(shown.text(2, 1), QString());
    }

    void fillingTakesTheEditedCellToo()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        shown.goTo(4, 1);
        shown->selectionModel()->setCurrentIndex(shown->model()->index(1, 1),
                                                 QItemSelectionModel::NoUpdate);
        shown.type(u"Fan"_s);
        shown.key(Qt::Key_Return, Qt::ControlModifier);
        QCoreApplication::processEvents();
        QCOMPARE(shown.texts(1), u"|Fan||Fan|"_s);
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
        shown.goTo(2, 0);
        tell({}, u"T"_s);
        QCOMPARE(shown.typed(), u"(closed)"_s);
    }

    void theNoteStaysAtItsCell()
    {
        ShownGrid shown;
        QVERIFY(!shown.grid->enterText(shown.item(2), 2, u"x"_s));
        const auto place = [&shown] {
            return shown->findChild<QLabel *>(u"CellNote"_s)->mapTo(&shown.form, QPoint());
        };
        const auto below = [&shown](int row) {
            const QRect cell = shown->visualRect(shown->model()->index(row - 1, 2));
            return shown.inForm(QPoint(cell.left(), cell.bottom() + 1));
        };
        QCOMPARE(place(), below(2));
        shown->Add(1, u"New"_s, u"above"_s);
        QCOMPARE(place(), below(3));
        shown->setColumnWidth(0, 40);
        QCOMPARE(place(), below(3));
        shown.item(3)->setVisible(false);
        QCOMPARE(shown.note(), QString());
        shown.item(3)->setVisible(true);
        QCOMPARE(shown.note(), u"This is not a number."_s);
        shown->ListItems()->Remove(3);
        QCOMPARE(shown.note(), QString());
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

    void theHostMayDoAnything_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("deed");
        for (const char *event : {"ask", "told", "refused"}) {
            for (const char *deed : {"destroy", "clear", "throw", "disable", "edit", "columns"})
                QTest::addRow("%s %s", event, deed) << event << deed;
        }
    }
    void theHostMayDoAnything()
    {
        QFETCH(const QString, event);
        QFETCH(const QString, deed);
        ShownGrid shown;
        const auto act = [&shown, deed] {
            if (deed == u"destroy"_s)
                delete shown.list.data();
            else if (deed == u"clear"_s)
                shown->Clear();
            else if (deed == u"throw"_s)
                failEditing();
            else if (deed == u"disable"_s)
                shown->setEnabled(false);
            else if (deed == u"edit"_s)
                shown.grid->enterText(shown.item(1), 1, u"again"_s);
            else
                shown->ColumnHeaders()->Clear();
        };
        connect(shown.grid, &ListGrid::cellEntering, this,
                [&](ListItem *, qint16, QString &text, QString &) {
                    if (event == u"ask"_s && text != u"again"_s)
                        act();
                });
        connect(shown.grid, &ListGrid::cellsChanged, this, [&](const QList<CellChange> &changes) {
            if (event == u"told"_s && changes.constFirst().text != u"again"_s)
                act();
        });
        connect(shown.grid, &ListGrid::cellsRefused, this, [&] {
            if (event == u"refused"_s)
                act();
        });
        shown.goTo(2, 2);
        shown.type(event == u"refused"_s ? u"x"_s : u"5"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        if (shown.list && shown.list->isEnabled())
            shown.key(Qt::Key_Escape);
        if (shown.grid && shown->ListItems()->Count() > 0 && shown->ColumnHeaders()->Count() > 0) {
            const bool isTaken = shown.grid->enterText(shown.item(3), 2, u"6"_s);
            QCOMPARE(isTaken, shown.grid->rule(2).kind == CellRule::Number);
        }
    }
};

ORVT_TEST(CellEditingTest)
#include "CellEditingTest.moc"
