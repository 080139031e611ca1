// What rules and the host say to a text that is entered, and what becomes of one that they
// refuse.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class CellAnswersTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

ORVT_TEST(CellAnswersTest)
#include "CellAnswersTest.moc"
