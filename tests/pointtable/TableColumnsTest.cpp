// The columns of a table: how their headers and cells stand, and what widths are told.

#include "listview/ShownListView.h"
#include "shared/points/DisplayNames.h"
#include "support/TestProgram.h"
#include "support/WidgetPicture.h"
#include "support/WidgetTest.h"
#include "widgets/look/Twips.h"
#include <ORVTListview/LibraryTexts.h>
#include <ORVTListview/TextProvider.h>

#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The first and last column of pixels in an area that a text has touched.
std::pair<int, int> inked(const QImage &image, const QRect &area)
{
    const auto isInk = [](QRgb pixel) { return qGray(pixel) < 110; };
    int first = -1;
    int last = -1;
    for (int x = area.left(); x <= area.right(); ++x) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            if (!isInk(image.pixel(x, y)))
                continue;
            first = first < 0 ? x : first;
            last = x;
        }
    }
    return {first - area.left(), last - area.left()};
}

// The place of a header's text and of the cell's under it, without the lines around.
QRect headerOf(const ShownListView &shown, int column)
{
    const QHeaderView &header = *shown.table().horizontalHeader();
    return QRect(header.sectionViewportPosition(column - 1), 0, header.sectionSize(column - 1),
                 header.height())
        .adjusted(2, 3, -2, -3);
}

QRect cellOf(const ShownListView &shown, int row, int column)
{
    return shown.table()
        .visualRect(shown.table().model()->index(row - 1, column - 1))
        .adjusted(2, 3, -2, -3);
}

// Every text twice, in capitals.
class LongTexts final : public TextProvider
{
public:
    QDateTime ChangeTime() override { return {}; }
    TextCollection GetTexts(const QString &) override
    {
        TextCollection texts;
        for (const LibraryText &text : libraryTexts()) {
            const QString english = QString::fromLatin1(text.english);
            texts.insert(textKey(english), english.toUpper() + u' ' + english.toUpper());
        }
        return texts;
    }
};

bool fits(const ReportList &table, int column)
{
    const QString text = table.model()->headerData(column, Qt::Horizontal).toString();
    const QHeaderView &header = *table.horizontalHeader();
    return header.fontMetrics().horizontalAdvance(text) + 6 <= header.sectionSize(column);
}

} // namespace

class TableColumnsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aHeaderThatDoesNotFitEndsInAnEllipsis_data();
    void aHeaderThatDoesNotFitEndsInAnEllipsis();
    void headersStandOverTheirCells_data();
    void headersStandOverTheirCells();
    void textsReadInTheirOwnDirection_data();
    void textsReadInTheirOwnDirection();
    void aLanguageThatNeedsRoomGetsIt_data();
    void aLanguageThatNeedsRoomGetsIt();
    void aLanguageLeavesTheOtherWidths();
    void theLastColumnGoesOnFillingInAnotherLanguage();
    void widthsAreToldAsTheyAre_data();
    void widthsAreToldAsTheyAre();
};

void TableColumnsTest::aHeaderThatDoesNotFitEndsInAnEllipsis_data()
{
    QTest::addColumn<bool>("reversed");
    QTest::newRow("from the left") << false;
    QTest::newRow("from the right") << true;
}

// It looks like a header of the elided text.
void TableColumnsTest::aHeaderThatDoesNotFitEndsInAnEllipsis()
{
    QFETCH(bool, reversed);
    const ShownListView shown(dsController);
    shown->setLayoutDirection(reversed ? Qt::RightToLeft : Qt::LeftToRight);
    QHeaderView &header = *shown.table().horizontalHeader();
    ColumnHeader &column = *shown->ColumnHerders()->Item(6);
    for (const int twips : {600, 700, 800, 910, 1000}) {
        column.setWidth(static_cast<float>(twips));
        column.setText(u"Proportional Band"_s);
        const QImage cut = pictureOf(header).copy(headerOf(shown, 6));
        const QString elided = header.fontMetrics().elidedText(column.Text(), Qt::ElideRight,
                                                               header.sectionSize(5) - 6);
        QVERIFY(elided.endsWith(u'…') && elided.size() > 1);
        column.setText(elided);
        QCOMPARE(pictureOf(header).copy(headerOf(shown, 6)), cut);
        const auto [first, last] = inked(cut, cut.rect());
        QVERIFY(first > 0 && last < cut.width() - 1);
    }
}

void TableColumnsTest::headersStandOverTheirCells_data()
{
    QTest::addColumn<bool>("reversed");
    QTest::addColumn<int>("alignment");
    for (const bool reversed : {false, true}) {
        for (const auto alignment : {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter})
            QTest::addRow("%d, %d", reversed, alignment) << reversed << int{alignment};
    }
}

void TableColumnsTest::headersStandOverTheirCells()
{
    QFETCH(bool, reversed);
    QFETCH(int, alignment);
    const ShownListView shown(dsConst);
    shown->setLayoutDirection(reversed ? Qt::RightToLeft : Qt::LeftToRight);
    shown.table().clearFocus();
    shown.table().setCurrentIndex({});
    for (int column = 1; column <= 5; ++column) {
        ColumnHeader &header = *shown->ColumnHerders()->Item(column);
        header.setWidth(static_cast<float>(1400 + 15 * column));
        header.setAlignment(static_cast<Qt::Alignment>(alignment));
        header.setText(u"Height"_s);
        if (column == 1)
            shown.item(2)->setText(u"Height"_s);
        else
            shown.item(2)->setSubItem(column - 1, u"Height"_s);
    }
    const QImage headers = pictureOf(*shown.table().horizontalHeader());
    const QImage cells = pictureOf(*shown.table().viewport());
    for (int column = 1; column <= 5; ++column) {
        const auto header = inked(headers, headerOf(shown, column));
        QVERIFY(header.first > 0);
        QCOMPARE(header, inked(cells, cellOf(shown, 2, column)));
    }
}

void TableColumnsTest::textsReadInTheirOwnDirection_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("unit") << u"°C"_s;
    QTest::newRow("negative") << u"-21.5 %"_s;
    QTest::newRow("name") << u"Pump (2)"_s;
    QTest::newRow("Hebrew") << u"שלום (2)!"_s;
}

// As from the left, but for the place.
void TableColumnsTest::textsReadInTheirOwnDirection()
{
    QFETCH(QString, text);
    ShownListView shown(dsConst);
    QFont font = shown.form.font(); // whose letters stand on whole pixels
    font.setHintingPreference(QFont::PreferFullHinting);
    shown.form.setFont(font);
    shown.table().setCurrentIndex({});
    shown.item(2)->setSubItem(2, text);
    shown->ColumnHerders()->Item(3)->setText(text);
    shown->setCaption(text);
    QWidget &caption = shown.part(u"LblCaption"_s);
    QHeaderView &header = *shown.table().horizontalHeader();
    const auto inkOf = [](const QImage &image) {
        const auto [first, last] = inked(image, image.rect());
        return image.copy(first, 0, last - first + 1, image.height());
    };
    const auto pictures = [&] {
        return QList<QImage>{
            inkOf(pictureOf(*shown.table().viewport()).copy(cellOf(shown, 2, 3))),
            inkOf(pictureOf(header).copy(headerOf(shown, 3))),
            inkOf(pictureOf(caption)),
        };
    };
    const QList<QImage> fromLeft = pictures();
    shown->setLayoutDirection(Qt::RightToLeft);
    const QList<QImage> fromRight = pictures();
    for (int part = 0; part < 3; ++part)
        QCOMPARE(fromRight.at(part).width(), fromLeft.at(part).width());
    QCOMPARE(fromRight.at(0), fromLeft.at(0));
    QCOMPARE(fromRight.at(2), fromLeft.at(2));
}

void TableColumnsTest::aLanguageThatNeedsRoomGetsIt_data()
{
    QTest::addColumn<int>("type");
    for (int type = dsVariable; type <= dsOutputParam; ++type)
        QTest::newRow(qPrintable(displayName(type))) << type;
}

void TableColumnsTest::aLanguageThatNeedsRoomGetsIt()
{
    QFETCH(int, type);
    for (const bool isFitted : {false, true}) {
        const ShownListView shown(static_cast<LwType>(type));
        QString message;
        if (isFitted)
            shown->UpdateListViewWidth(message);
        const auto widths = [&] {
            QList<int> all;
            for (int column = 0; column < shown->ColumnHerders()->Count(); ++column)
                all << shown->GetSubItemWidth(static_cast<qint16>(column));
            return all;
        };
        const QList<int> before = widths();
        LongTexts texts;
        setTextProvider(&texts);
        shown->ReInitializeStrings();
        QCoreApplication::processEvents(); // a scroll bar may have come
        const QList<int> longer = widths();
        for (int column = 0; column < longer.size(); ++column) {
            QVERIFY2(fits(shown.table(), column), qPrintable(QString::number(column)));
            QVERIFY(longer.at(column) >= before.at(column));
        }
        setTextProvider(nullptr);
        shown->ReInitializeStrings();
        QCoreApplication::processEvents();
        QCOMPARE(widths(), longer);
    }
}

void TableColumnsTest::aLanguageLeavesTheOtherWidths()
{
    const ShownListView shown(dsVariable);
    ColumnHeader &hidden = *shown->ColumnHerders()->Item(2);
    ColumnHeader &closed = *shown->ColumnHerders()->Item(3);
    ColumnHeader &wide = *shown->ColumnHerders()->Item(4);
    ColumnHeader &number = *shown->ColumnHerders()->Item(1);
    hidden.setVisible(false);
    closed.setWidth(0);
    wide.setWidth(6000);
    number.setWidth(45); // cut, but in no language
    LongTexts texts;
    setTextProvider(&texts);
    shown->ReInitializeStrings();
    QVERIFY(!hidden.Visible());
    QCOMPARE(closed.Width(), 0.F);
    QCOMPARE(wide.Width(), 6000.F);
    QCOMPARE(number.Width(), 45.F);
    setTextProvider(nullptr);
}

void TableColumnsTest::theLastColumnGoesOnFillingInAnotherLanguage()
{
    const ShownListView shown(dsTimer);
    QString message;
    shown->UpdateListViewWidth(message);
    LongTexts texts;
    setTextProvider(&texts);
    shown->ReInitializeStrings();
    shown->resize(700, 320);
    shown->resize(500, 320);
    QCOMPARE(shown.table().horizontalHeader()->length(), shown.table().viewport()->width());
    shown->resize(200, 320);
    QVERIFY(fits(shown.table(), 3));
    setTextProvider(nullptr);
}

void TableColumnsTest::widthsAreToldAsTheyAre_data()
{
    QTest::addColumn<int>("twips");
    QTest::newRow("wider") << 3000;
    QTest::newRow("narrower") << 150;
}

// What is told of the filling column holds the frame beside it, always as much.
void TableColumnsTest::widthsAreToldAsTheyAre()
{
    QFETCH(int, twips);
    const ShownListView shown(dsVariable);
    QString message;
    shown->UpdateListViewWidth(message);
    const auto beside = [&] {
        return shown->GetSubItemWidth(5) -
               qRound(Twips::fromPixelsX(shown.table().columnWidth(5), shown.table()));
    };
    const int frame = beside();
    const int actual = shown.table().columnWidth(5);
    shown->ColumnHerders()->Item(2)->setWidth(static_cast<float>(twips));
    QCOMPARE(shown.table().columnWidth(5), actual);
    QCOMPARE(beside(), frame);
    shown->ColumnHerders()->Item(3)->setVisible(false);
    QCOMPARE(beside(), frame);
    QCOMPARE(qRound(shown->ColumnHerders()->Item(6)->Width()), shown->GetSubItemWidth(5));
    QCoreApplication::processEvents();
    QCOMPARE(beside(), frame);
    QCOMPARE(shown.table().columnWidth(5), actual);
}

ORVT_TEST(TableColumnsTest)
#include "TableColumnsTest.moc"
