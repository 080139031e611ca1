// What is seen, and what a screen reader hears.

#include "support/TestProgram.h"
#include "support/WidgetPicture.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListFixture.h"
#include "widgets/view/LongestText.h"

#include <QtCore/QDataStream>
#include <QtGui/QAccessible>
#include <QtGui/QPainter>
#include <QtGui/QPicture>
#include <QtGui/QPixmap>
#include <QtWidgets/QProxyStyle>

#include <cmath>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(static_cast<double>(colour.redF())) +
               0.7152 * linear(static_cast<double>(colour.greenF())) +
               0.0722 * linear(static_cast<double>(colour.blueF()));
    };
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

// The best contrast that any pixel of an area has to its corner beside the text.
double bestContrast(const QImage &image, const QRect &area)
{
    const QColor ground = image.pixelColor(area.topRight());
    double best = 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            best = std::max(best, contrast(ground, image.pixelColor(x, y)));
    }
    return best;
}

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(20, 20, 24));
    palette.setColor(QPalette::Window, QColor(30, 30, 34));
    palette.setColor(QPalette::Button, QColor(40, 40, 44));
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(role, QColor(240, 240, 240));
    palette.setColor(QPalette::Highlight, QColor(30, 70, 130));
    return palette;
}

// Its caret would blink into the pictures.
class WithoutCaret : public QWidget
{
public:
    using QWidget::QWidget;
};

} // namespace

class ReportListLookTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paintsTheBeginningsOfLongCells();
    void drawsTextsAsTheStyleDoes_data();
    void drawsTextsAsTheStyleDoes();
    void givesTextsToWhatRecordsThem();
    void showsWhereTheFocusIs();
    void showsEachCellOnOneLine();
    void showsRowColours();
    void isLegibleInEveryPalette_data();
    void isLegibleInEveryPalette();
    void greysOutWhenDisabled();
    void tellsAScreenReaderEachCell();
    void tellsAScreenReaderOfLabels();
    void hidesTheHeader();
    void keepsRowsOfOneHeight();
    void theFocusStaysWithinItsCell_data();
    void theFocusStaysWithinItsCell();
};

void ReportListLookTest::paintsTheBeginningsOfLongCells()
{
    const ShownList shown(20, 3);
    const QString beginning = u"The beginning of much "_s;
    const QImage before = [&] {
        shown.item(1)->setText(beginning + QString(500, u'x'));
        return pictureOf(*shown->viewport());
    }();
    shown.item(1)->setText(beginning + QString(1 << 20, u'x'));
    QCOMPARE(pictureOf(*shown->viewport()), before);
    LongestText style;
    shown->setStyle(&style);
    pictureOf(*shown->viewport());
    QVERIFY(style.letters() > beginning.size());
    QVERIFY2(style.letters() < 1000, qPrintable(QString::number(style.letters())));
}

void ReportListLookTest::drawsTextsAsTheStyleDoes_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("from the left") << Qt::LeftToRight << true;
    QTest::newRow("from the right") << Qt::RightToLeft << true;
    QTest::newRow("disabled") << Qt::LeftToRight << false;
    QTest::newRow("disabled from the right") << Qt::RightToLeft << false;
}

// The list draws most texts by itself, but none under a style that it does not know.
void ReportListLookTest::drawsTextsAsTheStyleDoes()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, enabled);
    const ShownList shown(8, 3);
    const QString own = shown->style()->name();
    QVERIFY2(own == u"fusion"_s || own == u"windows"_s, qPrintable(own));
    const QStringList texts{u"short"_s,      u"a text that is much too long for its column"_s,
                            u"Grüße gypq"_s, u"שלום עולם"_s,
                            u"-5 °C"_s,      u"W"_s,
                            u" x "_s};
    for (int row = 1; row <= texts.size(); ++row) {
        for (int column = 1; column <= 2; ++column)
            shown.item(row)->setSubItem(column, texts.at(row - 1));
    }
    QPixmap picture(12, 16);
    picture.fill(Qt::darkGreen);
    shown->setPictureProvider([&picture](const QString &) { return QIcon(picture); });
    for (int row = 1; row <= texts.size(); row += 2) {
        shown.item(row)->setPictureKey(u"any"_s);
        shown.item(row)->setText(texts.at(row - 1));
    }
    shown->ColumnHeaders()->Item(2)->setAlignment(Qt::AlignRight);
    shown->ColumnHeaders()->Item(3)->setAlignment(Qt::AlignHCenter);
    shown.item(3)->setForeground(Qt::red);
    shown->setSelectedItem(shown.item(2));
    shown->setLayoutDirection(direction);
    shown->setEnabled(enabled);
    const QImage drawn = pictureOf(*shown->viewport());
    const QImage again = pictureOf(*shown->viewport()); // by what was seen of the letters
    QProxyStyle other(own);
    shown->setStyle(&other);
    QCOMPARE(drawn, pictureOf(*shown->viewport()));
    QCOMPARE(again, drawn);
    shown->verticalHeader()->setDefaultSectionSize(9); // less than a text needs
    const QImage low = pictureOf(*shown->viewport());
    shown->setStyle(nullptr);
    shown->verticalHeader()->setDefaultSectionSize(9);
    QCOMPARE(pictureOf(*shown->viewport()), low);
    shown.item(1)->setSubItem(1, u"other"_s);
    QVERIFY(low != pictureOf(*shown->viewport()));
}

void ReportListLookTest::givesTextsToWhatRecordsThem()
{
    const ShownList shown(3, 1);
    const QString text = u"Rec"_s;
    shown.item(2)->setText(text);
    for (int i = 0; i < 3; ++i)
        pictureOf(*shown->viewport()); // which knows its letters then
    QPicture record;
    shown->viewport()->render(&record);
    QByteArray wanted;
    QDataStream stream(&wanted, QIODevice::WriteOnly);
    stream << text;
    QVERIFY(QByteArray(record.data(), static_cast<qsizetype>(record.size())).contains(wanted));
}

void ReportListLookTest::showsWhereTheFocusIs()
{
    ShownList shown;
    WithoutCaret other(&shown.form);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    for (const bool selected : {true, false}) {
        shown->setSelectedItem(shown.item(2));
        shown.item(2)->setSelected(selected);
        shown->setFocus();
        const QImage with = pictureOf(*shown->viewport());
        other.setFocus();
        const QImage without = pictureOf(*shown->viewport());
        const QRect row = shown->visualRect(shown->model()->index(1, 0));
        QVERIFY(with.copy(row) != without.copy(row));
        // The text is as legible as without.
        QVERIFY(with.copy(row.adjusted(2, 2, -2, -2)) == without.copy(row.adjusted(2, 2, -2, -2)));
        QVERIFY(bestContrast(with.copy(row), QRect(0, 0, row.width(), 1)) > 3);
        const QRect next = shown->visualRect(shown->model()->index(3, 0));
        QVERIFY(with.copy(next) == without.copy(next));
    }
}

void ReportListLookTest::showsEachCellOnOneLine()
{
    const ShownList shown;
    shown.item(1)->setText(u"one two"_s);
    shown.item(2)->setText(u"one\ntwo"_s);
    shown.item(3)->setText(u"one\r\ntwo"_s);
    shown.item(4)->setText(u"one\ttwo"_s);
    shown.item(5)->setText(QStringLiteral("one\u2028two"));
    shown->setCurrentIndex({});
    const QImage image = pictureOf(*shown->viewport());
    const QImage first = image.copy(shown->visualRect(shown->model()->index(0, 0)));
    for (int row = 1; row < 5; ++row)
        QVERIFY(image.copy(shown->visualRect(shown->model()->index(row, 0))) == first);
}

void ReportListLookTest::showsRowColours()
{
    const ShownList shown;
    shown.item(2)->setForeground(QColor(255, 0, 0));
    const auto reds = [&](int row) {
        const QImage image = pictureOf(*shown->viewport());
        const QRect area = shown->visualRect(shown->model()->index(row - 1, 0));
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                count += colour.red() > 150 && colour.green() < 100 && colour.blue() < 100 ? 1 : 0;
            }
        }
        return count;
    };
    QVERIFY(reds(2) > 20);
    QCOMPARE(reds(3), 0);
    shown->setSelectedItem(shown.item(2)); // then the palette decides
    QCOMPARE(reds(2), 0);
}

void ReportListLookTest::isLegibleInEveryPalette_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addRow("as it is") << QPalette();
    QTest::addRow("dark") << darkPalette();
    QPalette strong;
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window, QPalette::Button})
        strong.setColor(role, Qt::black);
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        strong.setColor(role, Qt::yellow);
    strong.setColor(QPalette::Highlight, Qt::cyan);
    strong.setColor(QPalette::HighlightedText, Qt::black);
    QTest::addRow("high contrast") << strong;
}

void ReportListLookTest::isLegibleInEveryPalette()
{
    QFETCH(QPalette, palette);
    const ShownList shown;
    shown->setPalette(palette);
    shown->setSelectedItem(shown.item(2));
    shown.item(1)->setText(QString(8, u'█'));
    shown.item(2)->setText(QString(8, u'█'));
    const QImage image = pictureOf(*shown->viewport());
    const auto area = [&](int row) {
        return shown->visualRect(shown->model()->index(row - 1, 0)).adjusted(2, 3, -2, -3);
    };
    QVERIFY(bestContrast(image, area(1)) > 4.5);
    QVERIFY(bestContrast(image, area(2)) >
            0.95 * contrast(palette.color(QPalette::Highlight),
                            palette.color(QPalette::HighlightedText)));
    QCOMPARE(image.pixelColor(shown->viewport()->width() - 3, shown->viewport()->height() - 3),
             palette.color(QPalette::Base));
    const QImage header = pictureOf(*shown->horizontalHeader());
    QVERIFY(bestContrast(header, QRect(2, 3, 80, header.height() - 6)) > 3);
}

void ReportListLookTest::greysOutWhenDisabled()
{
    const ShownList shown;
    const QImage enabled = pictureOf(*shown->viewport());
    shown->setEnabled(false);
    QVERIFY(pictureOf(*shown->viewport()) != enabled);
}

void ReportListLookTest::tellsAScreenReaderEachCell()
{
    const ShownList shown(40, 3);
    shown.item(30)->setSubItem(2, u"21.5"_s);
    shown->setAccessibleName(u"Inputs"_s);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(shown.list);
    QVERIFY(list);
    QCOMPARE(list->role(), QAccessible::Table);
    QCOMPARE(list->text(QAccessible::Name), u"Inputs"_s);
    QAccessibleTableInterface *table = list->tableInterface();
    QVERIFY(table);
    QCOMPARE(table->rowCount(), 40);
    QCOMPARE(table->columnCount(), 3);
    QAccessibleInterface *cell = table->cellAt(29, 2);
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), u"21.5"_s);
    QAccessibleTableCellInterface *place = cell->tableCellInterface();
    QVERIFY(place);
    QCOMPARE(place->rowIndex(), 29);
    QCOMPARE(place->columnIndex(), 2);
    QCOMPARE(place->columnHeaderCells().size(), 1);
    QCOMPARE(place->columnHeaderCells().first()->text(QAccessible::Name), u"Header 3"_s);
    QCOMPARE(place->rowHeaderCells().size(), 1);
    QCOMPARE(place->rowHeaderCells().first()->text(QAccessible::Name), u"30"_s);
    shown->goToRow(30);
    QVERIFY(place->isSelected());
    QVERIFY(cell->state().selected);
    shown->ListItems()->Remove(1); // what is told stays true
    QCOMPARE(list->tableInterface()->cellAt(28, 2)->text(QAccessible::Name), u"21.5"_s);
}

void ReportListLookTest::tellsAScreenReaderOfLabels()
{
    const ShownList shown;
    shown->setCheckBoxes(true);
    shown.item(2)->setChecked(true);
    QAccessibleTableInterface *table =
        QAccessible::queryAccessibleInterface(shown.list)->tableInterface();
    QAccessibleInterface *label = table->cellAt(1, 0);
    QCOMPARE(label->text(QAccessible::Name), u"Text 2"_s);
    QVERIFY(label->state().checkable && label->state().checked);
    QVERIFY(!table->cellAt(1, 1)->state().checkable);
    QVERIFY(!table->cellAt(0, 0)->state().checked);
}

void ReportListLookTest::hidesTheHeader()
{
    const ShownList shown;
    QVERIFY(shown->isHeaderVisible());
    shown->setHeaderVisible(false);
    QVERIFY(!shown->isHeaderVisible());
    QTRY_COMPARE(shown->viewport()->y(), shown->frameWidth());
    const QPoint inList = shown->mapFrom(&shown.form, shown.cell(1));
    QCOMPARE(shown->HitTest(static_cast<float>(Twips::fromPixelsX(inList.x(), *shown.list)),
                            static_cast<float>(Twips::fromPixelsY(inList.y(), *shown.list))),
             shown.item(1));
}

void ReportListLookTest::keepsRowsOfOneHeight()
{
    const ShownList shown(50);
    shown.item(3)->setText(u"two\nlines"_s);
    shown.item(4)->setText(u"温度"_s);
    const int height = shown->rowHeight(0);
    QVERIFY(height >= shown->fontMetrics().height());
    for (int row = 0; row < 50; ++row)
        QCOMPARE(shown->rowHeight(row), height);
}

void ReportListLookTest::theFocusStaysWithinItsCell_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        QTest::addRow("%g", scale) << scale;
}

void ReportListLookTest::theFocusStaysWithinItsCell()
{
    QFETCH(double, scale);
    const ShownList shown;
    QImage image(QSize(400, 160), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    QStyleOptionViewItem option;
    option.initFrom(shown.list);
    option.widget = shown.list;
    option.font = shown->font();
    option.rect = QRect(16, 8, 64, 20);
    option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_HasFocus;
    QPainter painter(&image);
    shown->itemDelegate()->paint(&painter, option, shown->model()->index(0, 0));
    painter.end();
    const QRectF cell(QPointF(option.rect.topLeft()) * scale, QSizeF(option.rect.size()) * scale);
    QRect touched;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::magenta))
                touched |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY2(cell.toAlignedRect().contains(touched), qPrintable(QDebug::toString(touched)));
    QVERIFY(touched.width() > cell.width() - 2 * scale); // it goes round the cell
    QVERIFY(touched.height() > cell.height() - 2 * scale);
}

ORVT_TEST(ReportListLookTest)
#include "ReportListLookTest.moc"
