// Which editor a cell gets by its rule, and what it takes.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class CellEditorsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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

    void whatHasAButtonHasRoomForItAndForItsText_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from the left") << Qt::LeftToRight;
        QTest::newRow("from the right") << Qt::RightToLeft;
    }
    void whatHasAButtonHasRoomForItAndForItsText()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        ShownGrid shown;
        shown.form.setLayoutDirection(direction);
        const bool isLeft = direction == Qt::LeftToRight;
        for (const int column : {1, 3}) {
            shown.list->setColumnWidth(column, 20);
            shown.goTo(1, column);
            shown.key(Qt::Key_F2);
            const QWidget *field = column == 1 ? shown.field<QLineEdit>()
                                               : static_cast<QWidget *>(shown.field<QComboBox>());
            QVERIFY(field);
            const QRect cell = shown->visualRect(shown->currentIndex());
            const QRect place = field->geometry();
            if (column == 1) { // a plain field scrolls
                QCOMPARE(place.width(), cell.width());
            } else {
                QCOMPARE(place.width(), field->minimumSizeHint().width());
                QCOMPARE(isLeft ? place.left() : place.right(),
                         isLeft ? cell.left() : cell.right());
            }
            shown.key(Qt::Key_Escape);
        }
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
};

ORVT_TEST(CellEditorsTest)
#include "CellEditorsTest.moc"
