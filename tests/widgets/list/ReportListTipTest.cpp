// The whole text of a cell or a header that does not fit.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListFixture.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QToolTip>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void hover(QWidget &widget, QPoint at)
{
    QHelpEvent event(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class ReportListTipTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        WidgetTest::cleanup();
    }

    void tipsLongCellsOnly();
    void tipsTextAsItStands();
    void wrapsAndCutsLongTips_data();
    void wrapsAndCutsLongTips();
    void tipsLongHeaders();
};

void ReportListTipTest::tipsLongCellsOnly()
{
    const ShownList shown;
    shown.item(1)->setText(u"A label much too long for the column that it stands in"_s);
    hover(*shown->viewport(), shown->visualRect(shown->model()->index(0, 0)).center());
    QTRY_COMPARE(QToolTip::text(), shown.item(1)->Text());
    hover(*shown->viewport(), shown->visualRect(shown->model()->index(1, 0)).center());
    QTRY_VERIFY(!QToolTip::isVisible());
    // The narrowest column that shows no tip is the one that the text just fits.
    const QModelIndex label = shown->model()->index(0, 0);
    const int margin = 2 * (shown->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const int fitting = shown->fontMetrics().horizontalAdvance(shown.item(1)->Text()) + margin;
    shown->setColumnWidth(0, fitting);
    hover(*shown->viewport(), shown->visualRect(label).center());
    QVERIFY(!QToolTip::isVisible());
    shown->setColumnWidth(0, fitting - 1);
    hover(*shown->viewport(), shown->visualRect(label).center());
    QVERIFY(QToolTip::isVisible());
    hover(*shown->viewport(), QPoint(10, shown->viewport()->height() - 5));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void ReportListTipTest::tipsTextAsItStands()
{
    const ShownList shown;
    shown.item(1)->setText(u"<b>bold</b> & <a href=\"x\">more than fits here</a>"_s);
    hover(*shown->viewport(), shown->visualRect(shown->model()->index(0, 0)).center());
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains(u"&lt;b&gt;"_s));
    QToolTip::hideText();
    shown.item(1)->setText(QString(2000, u'x') + u' ' + QString(2000, u'y'));
    hover(*shown->viewport(), shown->visualRect(shown->model()->index(0, 0)).center());
    QTRY_VERIFY(QToolTip::isVisible());
}

void ReportListTipTest::wrapsAndCutsLongTips_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isCut");
    const QString word = u"lorem<i>ipsum "_s;
    QTest::addRow("words") << word.repeated(20) << false;
    QTest::addRow("one word") << QString(300, u'W') << false;
    QTest::addRow("lines") << u"line\n"_s.repeated(400) << true;
    QTest::addRow("1 MB of words") << word.repeated(80'000) << true;
    QTest::addRow("1 MB of one word") << QString(1 << 20, u'W') << true;
    QTest::addRow("pairs") << u"\U0001F600"_s.repeated(3000) << true;
}

void ReportListTipTest::wrapsAndCutsLongTips()
{
    QFETCH(QString, text);
    QFETCH(bool, isCut);
    const ShownList shown;
    shown.item(1)->setText(text);
    hover(*shown->viewport(), shown->visualRect(shown->model()->index(0, 0)).center());
    QVERIFY(QToolTip::isVisible());
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto tip = std::find_if(all.begin(), all.end(), [](const QWidget *widget) {
        return widget->isVisible() && widget->inherits("QTipLabel");
    });
    QVERIFY(tip != all.end());
    const QSize screen = shown->screen()->availableSize();
    QVERIFY2((*tip)->width() <= screen.width() * 4 / 5,
             qPrintable(QString::number((*tip)->width())));
    QVERIFY((*tip)->height() <= screen.height() / 2);
    const QString read = Qt::mightBeRichText(QToolTip::text())
                             ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText()
                             : QToolTip::text();
    const auto letters = [](QString string) {
        string.remove(QRegularExpression(u"[\\s\u00a0]"_s));
        return string;
    };
    QCOMPARE(read.endsWith(u'…'), isCut);
    QVERIFY(letters(text).startsWith(letters(read).chopped(isCut ? 1 : 0)));
    if (!isCut)
        QCOMPARE(letters(read), letters(text));
    QVERIFY(!read.chopped(1).back().isHighSurrogate());
}

void ReportListTipTest::tipsLongHeaders()
{
    const ShownList shown;
    shown->ColumnHeaders()->Item(2)->setText(u"Hw Override Mode and more that does not fit"_s);
    QWidget &header = *shown->horizontalHeader()->viewport();
    const auto middle = [&](int column) {
        return QPoint(shown->horizontalHeader()->sectionViewportPosition(column) + 20,
                      header.height() / 2);
    };
    hover(header, middle(1));
    QTRY_COMPARE(QToolTip::text(), shown->ColumnHeaders()->Item(2)->Text());
    hover(header, middle(0));
    QTRY_VERIFY(!QToolTip::isVisible());
}

ORVT_TEST(ReportListTipTest)
#include "ReportListTipTest.moc"
