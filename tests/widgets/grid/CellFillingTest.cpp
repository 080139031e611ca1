// One text for several cells: Delete, Ctrl+D and Ctrl+Enter.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class CellFillingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

ORVT_TEST(CellFillingTest)
#include "CellFillingTest.moc"
