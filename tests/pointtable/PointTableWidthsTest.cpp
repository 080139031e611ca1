// How wide the columns of ORVListView's point table and how high its caption become.

#include "pointtable/PointTableTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/ORVTListview.h>

#include <QtWidgets/QHeaderView>

using namespace ORVTListview;
using namespace PointTable;
using namespace Qt::StringLiterals;

class PointTableWidthsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void widthsAreTold();
    void widthsFitTheirContents();
    void widthsFitAHiddenControl();
    void widthsFitWithoutColumns();
    void captionTakesTheDisplayFont();
    void captionGivesAWithdrawnFontBack();
};

void PointTableWidthsTest::widthsAreTold()
{
    ORVListView list;
    list.ColumnHerders()->Item(1)->setWidth(600);
    QCOMPARE(list.GetSubItemWidth(0), 600);
    QCOMPARE(list.GetSubItemWidth(6), 1440);
    QCOMPARE(list.GetSubItemWidth(-1), 0);
    QCOMPARE(list.GetSubItemWidth(7), 0);
    QCOMPARE(list.GetSubItemWidth(32767), 0);
    QCOMPARE(list.GetSubItemWidth(-32768), 0);
}

void PointTableWidthsTest::widthsFitTheirContents()
{
    ORVListView list;
    list.setListviewType(dsOutput);
    list.resize(900, 300);
    list.show();
    list.ListItems()->Item(7)->setSubItem(5, u"A description that is longer than its header"_s);
    list.ListItems()->Item(12)->setText(u"Twelve"_s);
    QString message = u"untouched"_s;
    list.UpdateListViewWidth(message);
    QCOMPARE(message, u"untouched"_s);
    const QFontMetrics cells(list.listView()->font());
    const QFontMetrics headers(list.listView()->horizontalHeader()->font());
    const auto needed = [&](const QFontMetrics &metrics, const QString &text, int margin) {
        return metrics.horizontalAdvance(text) * 1440 / list.logicalDpiX() + margin;
    };
    const auto isFor = [&](int column, int twips) {
        return qAbs(list.GetSubItemWidth(static_cast<qint16>(column)) - twips) <= 8; // half a pixel
    };
    QVERIFY(isFor(0, needed(cells, u"Twelve"_s, 375)));
    QVERIFY(isFor(1, needed(headers, u"Label"_s, 200)));
    QVERIFY(isFor(5, needed(cells, list.ListItems()->Item(7)->SubItem(5), 200)));
    int sum = 0;
    for (qint16 column = 0; column < 7; ++column)
        sum += list.GetSubItemWidth(column);
    QVERIFY(sum >= list.listView()->width() * 1440 / list.logicalDpiX());
}

void PointTableWidthsTest::widthsFitAHiddenControl()
{
    ORVListView list;
    list.resize(1234, 300);
    QString message;
    list.UpdateListViewWidth(message);
    int sum = 0;
    for (qint16 column = 0; column < 7; ++column)
        sum += list.GetSubItemWidth(column);
    QCOMPARE(sum, (1234 - 2) * 15);
}

void PointTableWidthsTest::widthsFitWithoutColumns()
{
    ORVListView list;
    list.ColumnHerders()->Clear();
    QString message;
    list.UpdateListViewWidth(message);
    QCOMPARE(message, QString());
    QCOMPARE(list.GetSubItemWidth(0), 0);
}

void PointTableWidthsTest::captionTakesTheDisplayFont()
{
    ORVListView list;
    list.resize(500, 300);
    list.show();
    const QWidget &caption = partOf<QWidget>(list, u"LblCaption"_s);
    const QFont before = caption.font();
    TranslatedTexts texts(QLocale::c());
    setTextProvider(&texts);
    list.InitStrings();
    QCOMPARE(caption.font(), before);
    texts.setDisplayFont({u"DejaVu Serif"_s, 0});
    list.InitStrings();
    QCOMPARE(caption.font().family(), u"DejaVu Serif"_s);
    QCOMPARE(caption.font().pointSizeF(), before.pointSizeF());
    texts.setDisplayFont({u"DejaVu Serif"_s, 30});
    list.InitStrings();
    QCOMPARE(caption.font().pointSize(), 30);
    QCOMPARE(caption.height(), caption.fontMetrics().height());
    QCOMPARE(list.listView()->y(), caption.height() + 1); // 15 twips
    QCOMPARE(list.listView()->font().family(), before.family());
}

void PointTableWidthsTest::captionGivesAWithdrawnFontBack()
{
    ORVListView list;
    const QWidget &caption = partOf<QWidget>(list, u"LblCaption"_s);
    const QFont before = caption.font();
    TranslatedTexts texts(QLocale::c());
    setTextProvider(&texts);
    texts.setDisplayFont({u"DejaVu Serif"_s, 30});
    list.InitStrings();
    texts.setDisplayFont({u"DejaVu Serif"_s, 0}); // the size alone
    list.InitStrings();
    QCOMPARE(caption.font().pointSizeF(), before.pointSizeF());
    texts.setDisplayFont({});
    list.InitStrings();
    QCOMPARE(caption.font(), before);
    texts.setDisplayFont({u"DejaVu Serif"_s, 30}); // and once more, by another language
    list.InitStrings();
    setTextProvider(nullptr);
    list.ReInitializeStrings();
    QCOMPARE(caption.font(), before);
    QFont larger = before;
    larger.setPointSize(40);
    list.setFont(larger); // is followed again
    QCOMPARE(caption.font().pointSize(), 40);
}

ORVT_TEST(PointTableWidthsTest)
#include "PointTableWidthsTest.moc"
