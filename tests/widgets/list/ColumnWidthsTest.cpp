#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListFixture.h"
#include "widgets/look/CellText.h"
#include "widgets/look/TextWidths.h"
#include "widgets/view/LongestText.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QScrollBar>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_engine); }

    QString text()
    {
        static const QStringList pieces{u"AV"_s, u"To"_s, u"fi"_s, u"ffi"_s,    u"fl"_s,  u" "_s,
                                        u"."_s,  u"Wa"_s, u"12"_s, u"7"_s,      u"%"_s,   u"°C"_s,
                                        u"ü"_s,  u"ß"_s,  u"œ"_s,  u"€"_s,      u"\t"_s,  u"\n"_s,
                                        u"Ж"_s,  u"温"_s, u"á"_s,  u"\u00ad"_s, u"==>"_s, u"www"_s};
        QString text;
        const int count = below(14);
        for (int i = 0; i < count; ++i) {
            const int kind = below(20);
            if (kind == 0)
                text += pieces.at(below(static_cast<int>(pieces.size())));
            else if (kind < 4)
                text += pieces.at(below(11));
            else
                text += QChar(static_cast<char16_t>(0x20 + below(0x5f)));
        }
        return text;
    }

private:
    std::mt19937 m_engine;
};

QString shown(QString text)
{
    return text.replace(u'\t', u' ').replace(u'\n', u' ');
}

int twipsToPixels(double twips, const QWidget &widget)
{
    return Twips::toPixelsX(twips, widget);
}

// The rule, cell by cell.
QList<int> neededWidths(const ReportList &list)
{
    const QFontMetrics header(list.horizontalHeader()->font());
    const QFontMetrics cells(list.font());
    QList<int> needed;
    for (int column = 0; column < list.model()->columnCount(); ++column) {
        double widest =
            Twips::fromPixelsX(header.horizontalAdvance(shown(
                                   list.model()->headerData(column, Qt::Horizontal).toString())),
                               list) +
            200;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QString text = shown(list.model()->index(row, column).data().toString());
            widest = std::max(widest, Twips::fromPixelsX(cells.horizontalAdvance(text), list) +
                                          (column == 0 ? 375 : 200));
        }
        needed.append(twipsToPixels(widest, list));
    }
    return needed;
}

float sumOfWidths(const ReportList &list)
{
    float sum = 0;
    for (int column = 1; column <= list.ColumnHeaders()->Count(); ++column)
        sum += list.ColumnHeaders()->Item(column)->Width();
    return sum;
}

} // namespace

class ColumnWidthsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheWidestText_data();
    void findsTheWidestText();
    void fitsEveryColumnExactly_data();
    void fitsEveryColumnExactly();
    void givesTheLastColumnTheRest();
    void fillsWithoutAScrollBar();
    void followsTheListsWidth();
    void stopsFollowingWhenTheColumnIsSet();
    void stopsFollowingWhenTheUserDrags();
    void forgetsOldColumns();
    void leavesTooNarrowListsToTheScrollBar();
    void fitsBeforeItIsShown();
    void makesRoomForPicturesAndBoxes();
    void roundsHalfToEven();
    void fitsInAnotherFont();
    void fitsAColumnByItsDivider();
    void fitsTheBeginningsOfLongTexts();
};

void ColumnWidthsTest::findsTheWidestText_data()
{
    QTest::addColumn<QFont>("font");
    QStringList families{QApplication::font().family()};
    families += QFontDatabase::families();
    for (const QString &family : families) {
        for (const double size : {9.0, 10.5, 17.0}) {
            QFont font(family);
            font.setPointSizeF(size);
            QTest::addRow("%s %g", qPrintable(family), size) << font;
            font.setItalic(true);
            font.setBold(true);
            QTest::addRow("%s %g, bold italic", qPrintable(family), size) << font;
        }
    }
    QFont spaced;
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, 1.3);
    QTest::addRow("spaced") << spaced;
    QFont capitals;
    capitals.setCapitalization(QFont::SmallCaps);
    QTest::addRow("small capitals") << capitals;
    QFont uncoupled;
    uncoupled.setKerning(false);
    QTest::addRow("without kerning") << uncoupled;
    QFont whole;
    whole.setHintingPreference(QFont::PreferFullHinting);
    QTest::addRow("hinted") << whole;
}

void ColumnWidthsTest::findsTheWidestText()
{
    QFETCH(QFont, font);
    const unsigned seed = randomSeed();
    Random random(seed);
    TextWidths widths(font);
    const QFontMetrics metrics(font);
    for (int round = 0; round < 25; ++round) {
        int widest = 0;
        int expected = 0;
        for (int i = 0; i < 30; ++i) {
            const QString text = random.text();
            widths.widen(widest, text);
            expected = std::max(expected, metrics.horizontalAdvance(shown(text)));
            if (widest != expected)
                QFAIL(qPrintable(
                    u"seed %1: \"%2\" makes %3, not %4"_s.arg(seed).arg(text).arg(expected).arg(
                        widest)));
        }
    }
}

void ColumnWidthsTest::fitsEveryColumnExactly_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : randomSeeds(10))
        QTest::addRow("seed %u", seed) << seed;
}

void ColumnWidthsTest::fitsEveryColumnExactly()
{
    QFETCH(unsigned, seed);
    Random random(seed);
    const int columns = 1 + random.below(14);
    const ShownList shownList(0, columns);
    ReportList &list = *shownList.list;
    for (int row = random.below(100); row > 0; --row) {
        RowContent content;
        content.text = random.text();
        for (int column = 1; column < columns; ++column)
            content.subItems.append(random.text());
        list.appendRows({content});
    }
    list.fitColumns();
    const QList<int> needed = neededWidths(list);
    for (int column = 0; column + 1 < columns; ++column)
        QCOMPARE(list.columnWidth(column), needed.at(column));
    QVERIFY(list.columnWidth(columns - 1) >= needed.last());
    QVERIFY(sumOfWidths(list) >= static_cast<float>(Twips::fromPixelsX(list.width(), list)) - 1);
}

void ColumnWidthsTest::givesTheLastColumnTheRest()
{
    const ShownList shown(3, 3);
    shown->fitColumns();
    const float list = static_cast<float>(Twips::fromPixelsX(shown->width(), *shown.list));
    QCOMPARE(sumOfWidths(*shown.list), list);
    QCOMPARE(shown->GetSubItemWidth(2), qRound(shown->ColumnHeaders()->Item(3)->Width()));
    shown.item(1)->setSubItem(2, QString(200, u'W'));
    shown->fitColumns();
    QVERIFY(sumOfWidths(*shown.list) > list);
    QCOMPARE(shown->columnWidth(2), neededWidths(*shown.list).last());
}

void ColumnWidthsTest::fillsWithoutAScrollBar()
{
    const ShownList shown(100, 3);
    shown->fitColumns();
    QVERIFY(shown->verticalScrollBar()->isVisible());
    QVERIFY(!shown->horizontalScrollBar()->isVisible());
    QCOMPARE(shown->horizontalHeader()->length(), shown->viewport()->width());
}

void ColumnWidthsTest::followsTheListsWidth()
{
    const ShownList shown(3, 3);
    shown->fitColumns();
    const int first = shown->columnWidth(0);
    shown->resize(600, 240);
    QCOMPARE(shown->horizontalHeader()->length(), shown->viewport()->width());
    QCOMPARE(sumOfWidths(*shown.list), static_cast<float>(Twips::fromPixelsX(600, *shown.list)));
    shown->appendRows(QList<RowContent>(100)); // a scroll bar comes
    QCoreApplication::processEvents();
    QVERIFY(shown->verticalScrollBar()->isVisible());
    QVERIFY(!shown->horizontalScrollBar()->isVisible());
    shown->resize(50, 240);
    QCOMPARE(shown->columnWidth(2), neededWidths(*shown.list).last());
    QCOMPARE(shown->columnWidth(0), first);
}

void ColumnWidthsTest::stopsFollowingWhenTheColumnIsSet()
{
    const ShownList shown(3, 3);
    shown->fitColumns();
    shown->ColumnHeaders()->Item(3)->setWidth(1500);
    shown->resize(600, 240);
    QCOMPARE(shown->columnWidth(2), Twips::toPixelsX(1500, *shown.list));
    QCOMPARE(shown->GetSubItemWidth(2),
             qRound(Twips::fromPixelsX(shown->columnWidth(2), *shown.list)));
}

void ColumnWidthsTest::stopsFollowingWhenTheUserDrags()
{
    const ShownList shown(3, 3);
    shown->fitColumns();
    const QHeaderView &header = *shown->horizontalHeader();
    const QPoint edge = header.viewport()->mapTo(
        &shown.form,
        QPoint(header.sectionViewportPosition(2) + header.sectionSize(2) - 2, header.height() / 2));
    const int before = shown->columnWidth(2);
    shown.move(edge);
    shown.press(edge);
    for (int step = 1; step <= 4; ++step)
        shown.move(edge - QPoint(step * 10, 0));
    shown.release(edge - QPoint(40, 0));
    QCOMPARE(shown->columnWidth(2), before - 40);
    shown->resize(600, 240);
    QCOMPARE(shown->columnWidth(2), before - 40);
}

void ColumnWidthsTest::forgetsOldColumns()
{
    const ShownList shown(3, 3);
    shown->fitColumns();
    ColumnHeader *added = shown->ColumnHeaders()->Add();
    const float width = added->Width();
    shown->resize(600, 240);
    QCOMPARE(added->Width(), width);
    QCOMPARE(width, static_cast<float>(Twips::fromPixelsX(shown->columnWidth(3), *shown.list)));
}

void ColumnWidthsTest::leavesTooNarrowListsToTheScrollBar()
{
    const ShownList shown(3, 14);
    shown->fitColumns();
    QVERIFY(shown->horizontalScrollBar()->isVisible());
    QCOMPARE(shown->columnWidth(13), neededWidths(*shown.list).last());
}

void ColumnWidthsTest::fitsBeforeItIsShown()
{
    ReportList list;
    list.resize(500, 300);
    for (int column = 0; column < 3; ++column)
        list.ColumnHeaders()->Add(0, QString(), u"Header"_s);
    list.Add(0, QString(), u"Text"_s);
    list.fitColumns();
    const float width = static_cast<float>(Twips::fromPixelsX(500, list));
    QCOMPARE(sumOfWidths(list), width);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QCOMPARE(sumOfWidths(list), width);
    QCOMPARE(list.horizontalHeader()->length(), list.viewport()->width());
}

void ColumnWidthsTest::makesRoomForPicturesAndBoxes()
{
    const ShownList shown(3, 2);
    shown.item(1)->setText(u"A label that is long enough"_s);
    shown->fitColumns();
    const int plain = shown->columnWidth(0);
    QCOMPARE(plain, neededWidths(*shown.list).first());
    shown->setCheckBoxes(true);
    shown.item(1)->setPictureKey(u"Inputs"_s);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    shown->setPictureProvider([&pixmap](const QString &) { return QIcon(pixmap); });
    shown->fitColumns();
    QVERIFY(shown->columnWidth(0) > plain);
    // Nothing of the text is cut off: exactly what the style asks for fits.
    QStyleOptionViewItem option;
    option.initFrom(shown.list);
    option.widget = shown.list;
    const QModelIndex label = shown->model()->index(0, 0);
    QVERIFY(shown->itemDelegate()->sizeHint(option, label).width() <= shown->columnWidth(0));
}

void ColumnWidthsTest::roundsHalfToEven()
{
    const ShownList shown(1, 3);
    for (int width = 0; width < 400; width += 7) {
        shown->ColumnHeaders()->Item(1)->setWidth(static_cast<float>(width));
        const double exact = Twips::fromPixelsX(shown->columnWidth(0), *shown.list);
        QCOMPARE(shown->GetSubItemWidth(0), static_cast<qint32>(std::nearbyint(exact)));
    }
}

void ColumnWidthsTest::fitsInAnotherFont()
{
    const ShownList shown(3, 3);
    shown->fitColumns();
    const int small = shown->columnWidth(0);
    const int height = shown->rowHeight(0);
    QFont font = shown->font();
    font.setPointSize(2 * font.pointSize());
    shown->setFont(font);
    QVERIFY(shown->rowHeight(0) > height);
    shown->fitColumns();
    QVERIFY(shown->columnWidth(0) > small);
    QCOMPARE(shown->columnWidth(0), neededWidths(*shown.list).first());
}

void ColumnWidthsTest::fitsAColumnByItsDivider()
{
    const ShownList shown(3000, 3);
    shown.item(3000)->setSubItem(1, QString(12, u'W')); // far from what is in sight
    shown->fitColumns();
    QList<int> fitted;
    for (int column = 0; column < 3; ++column)
        fitted.append(shown->columnWidth(column));
    shown->fitColumns();
    for (const int column : {0, 1, 2}) {
        shown->setColumnWidth(column, 50);
        const QHeaderView &header = *shown->horizontalHeader();
        const QPoint divider(header.sectionViewportPosition(column) + 49, header.height() / 2);
        shown.doubleClick(header.viewport()->mapTo(&shown.form, divider));
        QCOMPARE(shown->columnWidth(column), fitted.at(column));
    }
}

void ColumnWidthsTest::fitsTheBeginningsOfLongTexts()
{
    const ShownList shown(20, 2);
    LongestText style;
    shown->setStyle(&style);
    for (int row = 1; row <= 20; ++row)
        shown.item(row)->setSubItem(1, QString(1 << 20, QChar(u'a' + row)));
    shown->fitColumns();
    shown->grab();
    const int width = shown->columnWidth(1);
    QVERIFY(width > 4000); // what a column can show of them
    QVERIFY2(style.letters() < 10'000, qPrintable(QString::number(style.letters())));
    for (int row = 1; row <= 20; ++row)
        shown.item(row)->setSubItem(1, QString(longestLine, QChar(u'a' + row)) + QChar(0x2026));
    shown->fitColumns();
    QCOMPARE(width, shown->columnWidth(1));
}

ORVT_TEST(ColumnWidthsTest)
#include "ColumnWidthsTest.moc"
