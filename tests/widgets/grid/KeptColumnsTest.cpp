// The first two columns stay in sight while the others are scrolled sideways under them.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/KeptGrid.h"

#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class KeptColumnsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void itIsOffAtFirst()
    {
        ShownGrid shown;
        QVERIFY(!shown.grid->keepsFirstColumns());
        QSignalSpy told(shown.grid, &ListGrid::keepsFirstColumnsChanged);
        shown.grid->setKeepsFirstColumns(true);
        shown.grid->setKeepsFirstColumns(true);
        QCOMPARE(told.size(), 1);
        QVERIFY(shown.grid->property("keepsFirstColumns").toBool());
    }

    void theyStayWhereTheyAre_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from the left") << Qt::LeftToRight;
        QTest::newRow("from the right") << Qt::RightToLeft;
    }
    void theyStayWhereTheyAre()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        KeptGrid shown(direction);
        shown.scroll(0);
        const QImage before = shown.picture(0, 239);
        const QImage third = shown.picture(240, 120);
        shown.scroll(120);
        QCOMPARE(shown.scrolled(), 120);
        QCOMPARE(shown.picture(0, 239), before);
        QVERIFY(shown.picture(240, 120) != third);
        QCOMPARE(shown.begin(1, 0), 0);
        QCOMPARE(shown.begin(1, 1), 120);
        QCOMPARE(shown.begin(1, 2), 120);
        QCOMPARE(shown.begin(1, 3), 240);
        QCOMPARE(shown.under(10, 2), u"2 0"_s);
        QCOMPARE(shown.under(130, 2), u"2 1"_s);
        QCOMPARE(shown.under(250, 2), u"2 3"_s);
        shown.grid->setKeepsFirstColumns(false);
        QCOMPARE(shown.under(10, 2), u"2 1"_s);
        QVERIFY(shown.picture(0, 239) != before);
    }

    void theyAreClickedChosenAndEdited_data() { theyStayWhereTheyAre_data(); }
    void theyAreClickedChosenAndEdited()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        KeptGrid shown(direction);
        shown.click(shown.at(130, 2));
        QCOMPARE(shown.current(), u"2 1"_s);
        QCOMPARE(shown.scrolled(), 180);
        const QImage one = shown.picture(0, 239);
        shown.click(shown.at(130, 3));
        QVERIFY(shown.picture(0, 239) != one);
        shown.key(Qt::Key_F2);
        const auto *field = shown.field<QLineEdit>();
        QVERIFY(field);
        const auto begin = [&] {
            return direction == Qt::LeftToRight ? field->x()
                                                : shown.width() - 1 - field->geometry().right();
        };
        QCOMPARE(begin(), 120);
        shown.scroll(60);
        QCOMPARE(begin(), 120);
        shown.type(u"text"_s);
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.text(3, 1), u"text"_s);
        QCOMPARE(shown.scrolled(), 60);
        // A range from one that stays to one that is scrolled.
        shown.scroll(180);
        shown.press(shown.at(10, 1));
        shown.move(shown.at(300, 2));
        shown.release(shown.at(300, 2));
        QCOMPARE(shown->selectionModel()->selectedIndexes().size(), 10); // 0 to 4 in two rows
    }

    void keysDoNotHideACellUnderThem_data() { theyStayWhereTheyAre_data(); }
    void keysDoNotHideACellUnderThem()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        KeptGrid shown(direction);
        shown.goTo(1, 5);
        const Qt::Key back = direction == Qt::LeftToRight ? Qt::Key_Left : Qt::Key_Right;
        for (int column = 4; column >= 2; --column) {
            shown.key(back);
            QCOMPARE(shown.current(), u"1 %1"_s.arg(column));
            QVERIFY2(shown.begin(1, column) >= 240, qPrintable(QString::number(column)));
            QVERIFY(shown.begin(1, column) + 120 <= shown.width());
        }
        shown.scroll(180);
        shown.goTo(1, 1);
        QCOMPARE(shown.scrolled(), 180);
    }

    void anEditorIsScrolledUnderThem()
    {
        KeptGrid shown;
        shown.scroll(0);
        shown.goTo(1, 2);
        shown.key(Qt::Key_F2);
        QWidget *field = shown->indexWidget(shown->currentIndex());
        QVERIFY(field && field->mask().isEmpty());
        shown.scroll(60);
        QCOMPARE(field->x(), 180);
        QVERIFY(!field->mask().contains(QPoint(59, 5)) && field->mask().contains(QPoint(60, 5)));
        shown.grid->setKeepsFirstColumns(false);
        QVERIFY(field->mask().isEmpty());
        shown.grid->setKeepsFirstColumns(true);
        QVERIFY(!field->mask().contains(QPoint(59, 5)) && field->mask().contains(QPoint(60, 5)));
        shown.scroll(0);
        QVERIFY(field->mask().isEmpty());
    }

    void filterFieldsStayAboveThem()
    {
        KeptGrid shown;
        shown.grid->setFilterPlace(ListGrid::FilterInColumns);
        QCoreApplication::processEvents();
        QList<QLineEdit *> fields = shown->horizontalHeader()->findChildren<QLineEdit *>();
        QCOMPARE(fields.size(), 6);
        std::sort(fields.begin(), fields.end(), [](const QLineEdit *one, const QLineEdit *other) {
            return one->accessibleName() < other->accessibleName();
        });
        QCOMPARE(fields.at(0)->x(), 0);
        QCOMPARE(fields.at(1)->x(), 120);
        QCOMPARE(fields.at(3)->x(), 180);
        const QWidget *header = shown->horizontalHeader();
        QCOMPARE(header->childAt(200, header->height() - 5), fields.at(1));
        fields.at(2)->setFocus();
        QCOMPARE(fields.at(2)->x(), 240);
    }

    void theFirstTwoThatAreSeenAreKept()
    {
        KeptGrid shown;
        shown->setColumnHidden(0, true);
        shown->horizontalHeader()->moveSection(5, 1); // the last one comes first
        QCoreApplication::processEvents();
        shown.scroll(130);
        QCOMPARE(shown.under(10, 1), u"1 5"_s);
        QCOMPARE(shown.under(130, 1), u"1 1"_s);
        QCOMPARE(shown.under(250, 1), u"1 3"_s);
    }

    // On a screen with several pixels for one, too.
    void aLineEndsThem_data() { theyStayWhereTheyAre_data(); }
    void aLineEndsThem()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        KeptGrid shown(direction);
        QImage image(shown->viewport()->size() * 2, QImage::Format_RGB32);
        image.setDevicePixelRatio(2);
        shown.list->viewport()->render(&image);
        const int edge = direction == Qt::LeftToRight ? 239 : shown.width() - 240;
        const int below = 2 * shown->rowViewportPosition(4) + 2 * shown->rowHeight(4) + 10;
        const QRgb paper = shown->palette().color(QPalette::Base).rgb();
        for (int x = -2; x < 4; ++x)
            QCOMPARE(image.pixel(2 * edge + x, below) != paper, x == 0 || x == 1);
    }

    void theyLeaveRoomForOthers()
    {
        KeptGrid shown;
        shown->setColumnWidth(1, 300);
        shown.scroll(120);
        QCOMPARE(shown.under(10, 1), u"1 1"_s);
        QCOMPARE(shown.begin(1, 0), -120);
        shown->setColumnWidth(1, 60);
        QCOMPARE(shown.under(10, 1), u"1 0"_s);
    }

    void aScreenReaderIsToldWhereTheyAre()
    {
        KeptGrid shown;
        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(shown.list);
        QVERIFY(table && table->tableInterface());
        const QAccessibleInterface *cell = table->tableInterface()->cellAt(1, 1);
        const QPoint corner =
            shown->viewport()->mapToGlobal(QPoint(120, shown->rowViewportPosition(1)));
        QCOMPARE(cell->rect().topLeft(), corner);
        QCOMPARE(table->childAt(corner.x() + 5, corner.y() + 5)->text(QAccessible::Name),
                 cell->text(QAccessible::Name));
    }
};

ORVT_TEST(KeptColumnsTest)
#include "KeptColumnsTest.moc"
