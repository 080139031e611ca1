#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include "widgets/list/ReportListEvents.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QUndoStack>
#include <QtWidgets/QRubberBand>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A grid whose cells are selected, and where several can be.
struct CellGrid : ShownGrid
{
    explicit CellGrid(int rows = 5)
        : ShownGrid(rows)
    {
        grid->setSelectsCells(true);
        list->setMultiSelect(true);
    }

    // From one cell to another; rows from 1, columns from 0.
    void choose(int row, int column, int lastRow, int lastColumn) const
    {
        goTo(row, column);
        for (; row < lastRow; ++row)
            key(Qt::Key_Down, Qt::ShiftModifier);
        for (; column < lastColumn; ++column)
            key(Qt::Key_Right, Qt::ShiftModifier);
    }
    QString selected() const
    {
        QModelIndexList cells = list->selectionModel()->selectedIndexes();
        std::sort(cells.begin(), cells.end());
        QStringList names;
        for (const QModelIndex &cell : std::as_const(cells))
            names.append(
                QStringLiteral("%1%2").arg(QChar(u'A' + cell.column())).arg(cell.row() + 1));
        return names.join(u' ');
    }
};

void putOnClipboard(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

} // namespace

class CellPasteTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreSelectedAtFirst()
    {
        ShownGrid shown;
        QVERIFY(!shown.grid->selectsCells());
        shown.goTo(2, 1);
        QCOMPARE(shown->selectionModel()->selectedIndexes().size(), 6);
    }

    void rangesAreSelectedWithShiftAndTheMouse()
    {
        CellGrid shown;
        shown.choose(2, 1, 3, 2);
        QCOMPARE(shown.selected(), u"B2 C2 B3 C3"_s);
        shown.press(shown.cell(1, 2));
        shown.move(shown.cell(2, 3));
        shown.move(shown.cell(2, 4));
        shown.release(shown.cell(2, 4));
        QCOMPARE(shown.selected(), u"B1 C1 D1 B2 C2 D2"_s);
        shown.click(shown.cell(4, 2), Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(shown.selected(), u"B1 C1 D1 B2 C2 D2 B4"_s);
        shown.click(shown.cell(5, 1));
        QCOMPARE(shown.selected(), u"A5"_s);
    }

    void columnsAndRowsAreSelectedAsAWhole()
    {
        CellGrid shown(3);
        shown.click(shown.header(2));
        QCOMPARE(shown.selected(), u"B1 B2 B3"_s);
        shown.choose(2, 2, 2, 2);
        shown.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(shown.selected(), u"C1 C2 C3"_s);
        shown.key(Qt::Key_Space, Qt::ShiftModifier);
        QCOMPARE(shown.selected(), u"A2 B2 C2 D2 E2 F2"_s);
    }

    void aRowIsSelectedWithAnyOfItsCells()
    {
        CellGrid shown;
        shown.choose(2, 1, 3, 2);
        QVERIFY(!shown.item(1)->Selected());
        QVERIFY(shown.item(2)->Selected());
        QVERIFY(shown.item(3)->Selected());
        QCOMPARE(shown->SelectedItem(), shown.item(3));
        shown.click(shown.cell(1, 1));
        QVERIFY(!shown.item(2)->Selected());
        QCOMPARE(shown->SelectedItem(), shown.item(1));
        shown->setSelectedItem(shown.item(4));
        QCOMPARE(shown.selected(), u"A4 B4 C4 D4 E4 F4"_s);
        shown.choose(2, 1, 3, 1);
        shown.grid->setSelectsCells(false);
        QCOMPARE(shown->selectionModel()->selectedRows().size(), 2);
        QVERIFY(shown.item(2)->Selected() && shown.item(3)->Selected());
    }

    void cellsAreCopiedInThreeForms()
    {
        CellGrid shown;
        shown.set(1, 1, u"a,b"_s);
        shown.set(2, 1, u"x\ty"_s);
        shown.set(1, 2, u"1.5"_s);
        shown.choose(1, 1, 2, 2);
        shown.key(Qt::Key_C, Qt::ControlModifier);
        const QMimeData *data = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(data->text(), u"a,b\t1.5\n\"x\ty\"\t\n"_s);
        QCOMPARE(QString::fromUtf8(data->data(u"text/csv"_s)), u"\"a,b\",1.5\r\nx\ty,\r\n"_s);
        QVERIFY(data->html().contains(u"<tr><td>a,b</td><td>1.5</td></tr>"_s));
        shown.key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        data = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(data->text(), u"Header 2\tHeader 3\na,b\t1.5\n\"x\ty\"\t\n"_s);
        QVERIFY(data->html().contains(u"<tr><th>Header 2</th><th>Header 3</th></tr>"_s));
    }

    void cuttingCopiesAndClears()
    {
        CellGrid shown;
        shown.set(1, 1, u"a"_s);
        shown.choose(1, 1, 1, 1);
        shown.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"a\n"_s);
        QCOMPARE(shown.text(1, 1), QString());
    }

    void whatIsHiddenIsNotCopied()
    {
        CellGrid shown(3);
        shown.item(2)->setVisible(false);
        shown->setColumnHidden(1, true);
        shown.set(1, 2, u"1"_s);
        shown.set(3, 2, u"3"_s);
        shown.choose(1, 0, 1, 0);
        shown->selectAll();
        shown.grid->copyCells();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Text 1\t1\t\t\t\nText 3\t3\t\t\t\n"_s);
    }

    void aBlockIsPastedAsOneStep()
    {
        CellGrid shown;
        putOnClipboard(u"Pump\t7\r\nFan\t8\r\n"_s);
        shown.choose(2, 1, 2, 1);
        shown.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown.texts(1), u"|Pump|Fan||"_s);
        QCOMPARE(shown.texts(2), u"|7|8||"_s);
        QCOMPARE(shown.selected(), u"B2 C2 B3 C3"_s);
        QCOMPARE(shown.grid->undoStack()->count(), 1);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.texts(1) + shown.texts(2), u"||||||||"_s);
    }

    void oneCellFillsMany()
    {
        CellGrid shown;
        putOnClipboard(u"7"_s);
        shown.choose(1, 2, 4, 2);
        shown.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown.texts(2), u"7|7|7|7|"_s);
        shown.grid->setSelectsCells(false); // the column of the selected rows
        putOnClipboard(u"8"_s);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(2), u"8|8|8|8|"_s);
    }

    void rowsThatLieApartGetWhatIsPasted()
    {
        CellGrid shown;
        shown.set(2, 2, u"2"_s);
        putOnClipboard(u"7"_s);
        shown.click(shown.cell(1, 3));
        shown.click(shown.cell(5, 3), Qt::LeftButton, Qt::ControlModifier);
        shown.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown.texts(2), u"7|2|||7"_s);
        QCOMPARE(shown.selected(), u"C1 C5"_s);
        putOnClipboard(u"8\n9"_s);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(2), u"8|2|||9"_s);
        shown.take();
        putOnClipboard(u"1\n2\n3"_s); // would reach cells that nobody has chosen
        QVERIFY(!shown.grid->pasteCells());
        QCOMPARE(shown.take(), u"refused 1 2 There is not enough room here."_s);
        shown.click(shown.cell(2, 2), Qt::LeftButton, Qt::ControlModifier); // no rectangle
        putOnClipboard(u"5"_s);
        shown.key(Qt::Key_Delete);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(1) + u" "_s + shown.texts(2), u"|5||| 5|2|||5"_s);
        shown.grid->setSelectsCells(false);
        shown->setSelectedItem(nullptr);
        shown.goTo(1, 2);
        shown.item(4)->setSelected(true);
        putOnClipboard(u"6"_s);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(2), u"6|2||6|5"_s);
    }

    void columnsThatLieApartGetWhatIsPasted()
    {
        CellGrid shown(2);
        shown.set(1, 2, u"2"_s);
        shown.click(shown.cell(1, 2));
        shown.click(shown.cell(1, 6), Qt::LeftButton, Qt::ControlModifier);
        putOnClipboard(u"a\tb"_s);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(1) + shown.texts(2) + shown.texts(5), u"a|2|b|"_s);
    }

    void theBlockThatWasPastedIsSelectedWhereverItIsByThen()
    {
        CellGrid shown(8);
        const QMetaObject::Connection above =
            connect(shown.grid, &ListGrid::cellsChanged, shown.grid,
                    [&shown] { shown->Add(1, u"New"_s, u"above"_s); });
        putOnClipboard(u"1\n2"_s);
        shown.choose(2, 2, 2, 2);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.selected(), u"C3 C4"_s);
        disconnect(above);
        connect(shown.grid, &ListGrid::cellsChanged, shown.grid,
                [&shown] { shown->ListItems()->Remove(7); });
        shown.choose(6, 2, 6, 2);
        putOnClipboard(u"3\n4"_s);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.selected(), u"C6"_s); // the second is gone
    }

    void withoutMultiSelectOneRowIsSelected()
    {
        CellGrid shown(4);
        shown->setMultiSelect(false);
        shown.goTo(2, 2);
        shown.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(shown.selected(), u"C2"_s);
        putOnClipboard(u"1\n2"_s);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(2), u"|1|2|"_s);
        QCOMPARE(shown.selected(), u"C2"_s);
        QVERIFY(shown.item(2)->Selected() && !shown.item(3)->Selected());
        shown.key(Qt::Key_Space, Qt::ShiftModifier);
        QCOMPARE(shown.selected(), u"A2 B2 C2 D2 E2 F2"_s);
    }

    void onlyWhatWasCopiedIsCut()
    {
        CellGrid shown;
        shown.set(2, 2, u"2"_s);
        putOnClipboard(u"before"_s);
        shown.goTo(2, 2);
        shown->selectionModel()->clearSelection();
        shown.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        QCOMPARE(shown.text(2, 2), u"2"_s);
        shown->setCopiesRows(false);
        shown.goTo(2, 2);
        shown.key(Qt::Key_X, Qt::ControlModifier);
        shown.key(Qt::Key_C, Qt::ControlModifier);
        shown.key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        QCOMPARE(shown.text(2, 2), u"2"_s);
    }

    void selectedCellsStayThoseWhenAColumnComes()
    {
        CellGrid shown;
        shown.choose(2, 1, 3, 1);
        shown->ColumnHeaders()->Add(0, u"Column7"_s, u"Header 7"_s);
        QCoreApplication::processEvents();
        QCOMPARE(shown.selected(), u"B2 B3"_s);
        shown.item(2)->setSelected(true); // the whole row
        QCOMPARE(shown.selected(), u"A2 B2 C2 D2 E2 F2 G2 B3"_s);
    }

    void selectedCellsStayThoseWhenManyRowsAreSelected()
    {
        CellGrid shown(100);
        shown.choose(2, 1, 2, 1);
        for (int row = 3; row <= 90; ++row)
            shown.item(row)->setSelected(true);
        shown.item(90)->setSelected(false);
        QCoreApplication::processEvents();
        const QItemSelectionModel &selection = *shown->selectionModel();
        QVERIFY(!selection.isSelected(shown->model()->index(1, 0)));
        QVERIFY(selection.isSelected(shown->model()->index(1, 1)));
        QVERIFY(selection.isRowSelected(88));
        QVERIFY(!selection.rowIntersectsSelection(89));
    }

    void whatDoesNotFitIsRefusedAsAWhole()
    {
        CellGrid shown;
        putOnClipboard(u"Pump\tx\nLongName1\t8\n"_s);
        shown.choose(1, 1, 1, 1);
        shown.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown.texts(1), u"||||"_s);
        QCOMPARE(shown.take(), u"ask 1 1 Pump, ask 2 2 8, refused 1 2 This is not a number., "
                               "refused 2 1 Characters at most: 8."_s);
        QCOMPARE(shown.note(), u"Text 1, Header 3: This is not a number.\n"
                               "Text 2, Header 2: Characters at most: 8."_s);
        putOnClipboard(u"1\n2\n3\n4\n5\n6"_s);
        shown.choose(1, 2, 1, 2);
        QVERIFY(!shown.grid->pasteCells());
        QCOMPARE(shown.take(), u"refused 1 2 There is not enough room here."_s);
        QCOMPARE(shown.texts(2), u"||||"_s);
        putOnClipboard(u"a\t1"_s);
        shown.choose(1, 0, 1, 0);
        QVERIFY(!shown.grid->pasteCells());
        QCOMPARE(shown.take(), u"ask 1 1 1, refused 1 0 This cell cannot be edited."_s);
    }

    void pastingPassesOverWhatIsHidden()
    {
        CellGrid shown;
        shown.item(2)->setVisible(false);
        putOnClipboard(u"1\n2"_s);
        shown.choose(1, 2, 1, 2);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.texts(2), u"1||2||"_s);
    }

    void deleteAndFillingReachAllChosenCells()
    {
        CellGrid shown;
        putOnClipboard(u"a\t1\nb\t2\nc\t3"_s);
        shown.choose(1, 1, 1, 1);
        QVERIFY(shown.grid->pasteCells());
        shown.choose(1, 1, 3, 2);
        shown.key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(shown.texts(1), u"a|a|a||"_s);
        QCOMPARE(shown.texts(2), u"1|1|1||"_s);
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.texts(1) + shown.texts(2), u"||||||||"_s);
        shown.choose(2, 1, 3, 2);
        shown.type(u"9"_s);
        shown.key(Qt::Key_Return, Qt::ControlModifier);
        QCoreApplication::processEvents();
        QCOMPARE(shown.texts(1), u"|9|9||"_s);
        QCOMPARE(shown.texts(2), u"|9|9||"_s);
    }

    void theCornerIsDraggedToFill()
    {
        CellGrid shown(8);
        QVERIFY(!shown->viewport()->findChild<QWidget *>(u"FillHandle"_s)->isVisible());
        putOnClipboard(u"a\t1\nb\t2"_s);
        shown.choose(3, 1, 3, 1);
        QVERIFY(shown.grid->pasteCells());
        shown.choose(1, 0, 1, 0); // is not edited
        QVERIFY(!shown->viewport()->findChild<QWidget *>(u"FillHandle"_s)->isVisible());
        shown.choose(3, 1, 4, 2);
        const auto dragTo = [&shown](QPoint to) {
            auto *handle = shown->viewport()->findChild<QWidget *>(u"FillHandle"_s);
            QVERIFY(handle->isVisible());
            shown.press(handle->mapTo(&shown.form, QPoint(3, 3)));
            shown.move(to);
            shown.release(to);
        };
        dragTo(shown.cell(7, 3));
        QCOMPARE(shown.texts(1), u"||a|b|a|b|a|"_s);
        QCOMPARE(shown.texts(2), u"||1|2|1|2|1|"_s);
        QCOMPARE(shown.selected(), u"B3 C3 B4 C4 B5 C5 B6 C6 B7 C7"_s);
        shown.choose(3, 1, 4, 2);
        dragTo(shown.cell(1, 3));
        QCOMPARE(shown.texts(1), u"a|b|a|b|a|b|a|"_s);
        shown.choose(1, 2, 1, 2);
        shown.take();
        dragTo(shown.cell(1, 4));
        QCOMPARE(shown.take(), u"refused 1 3 This is not in the list."_s);
        QCOMPARE(shown.text(1, 3), QString());
    }

    // That of the toolkit would be to lay out and to paint all again.
    void theCornerComesWithoutMuchAdo()
    {
        CellGrid shown(40);
        const auto *corner = shown->viewport()->findChild<QWidget *>(u"FillHandle"_s);
        const auto goTo = [&](int column) {
            shown.choose(2, column, 2, column);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
        };
        goTo(1); // the window is complete
        goTo(0);
        QVERIFY(!corner->isVisible());
        QVERIFY(shown->verticalScrollBar()->isVisible());
        const PaintCount bar(*shown->verticalScrollBar());
        goTo(1);
        QVERIFY(corner->isVisible());
        goTo(0);
        QVERIFY(!corner->isVisible());
        QCOMPARE(bar.count, 0);
        shown->verticalScrollBar()->setValue(3);
        QTRY_VERIFY(bar.count > 0);
    }

    void aDragEndsWithItsRows()
    {
        CellGrid shown;
        shown.choose(2, 2, 2, 2);
        const auto *handle = shown->viewport()->findChild<QWidget *>(u"FillHandle"_s);
        const QPoint from = handle->mapTo(&shown.form, QPoint(3, 3));
        shown.press(from);
        shown.move(shown.cell(4, 3));
        QVERIFY(shown->viewport()->findChild<QRubberBand *>());
        shown->setRows({RowContent{.text = u"new"_s}});
        QVERIFY(!shown->viewport()->findChild<QRubberBand *>());
        shown.move(shown.cell(1, 3));
        shown.release(shown.cell(1, 3));
        QCOMPARE(shown.take(), QString());
    }

    void aDragEndsWhenAllOfItIsHidden()
    {
        CellGrid shown;
        shown.choose(2, 2, 2, 2);
        const auto *handle = shown->viewport()->findChild<QWidget *>(u"FillHandle"_s);
        shown.press(handle->mapTo(&shown.form, QPoint(3, 3)));
        shown.move(shown.cell(4, 3));
        shown->setColumnHidden(2, true);
        shown.move(shown.cell(4, 2));
        shown.release(shown.cell(4, 2));
        QVERIFY(!shown->viewport()->findChild<QRubberBand *>());
        QCOMPARE(shown.take(), QString());
    }

    void manyCellsArePastedAtOnce()
    {
        CellGrid shown(1000);
        QStringList lines;
        for (int row = 0; row < 1000; ++row)
            lines.append(u"P%1\t%2"_s.arg(row).arg(row % 100));
        putOnClipboard(lines.join(u'\n'));
        shown.choose(1, 1, 1, 1);
        QVERIFY(shown.grid->pasteCells());
        QCOMPARE(shown.text(1000, 1), u"P999"_s);
        QCOMPARE(shown.grid->undoStack()->count(), 1);
        shown.grid->undoStack()->undo();
        QCOMPARE(shown.text(1000, 1), QString());
    }
};

ORVT_TEST(CellPasteTest)
#include "CellPasteTest.moc"
