#include "widgets/look/Twips.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QWidget>

#include <limits>

using namespace ORVTListview;

class TwipsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void pixelsRoundToTheNearest();
    void noLengthReachesFurtherThanAWidget_data();
    void noLengthReachesFurtherThanAWidget();
};

void TwipsTest::pixelsRoundToTheNearest()
{
    const QWidget widget;
    QCOMPARE(Twips::toPixelsX(15.0 * 96 / widget.logicalDpiX(), widget), 1);
    QCOMPARE(Twips::toPixelsX(Twips::fromPixelsX(7.4, widget), widget), 7);
    QCOMPARE(Twips::toPixelsY(Twips::fromPixelsY(-7.6, widget), widget), -8);
}

void TwipsTest::noLengthReachesFurtherThanAWidget_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("twips");
    QTest::addColumn<int>("pixels");
    QTest::newRow("huge") << 1e300 << QWIDGETSIZE_MAX;
    QTest::newRow("huge and negative") << -1e300 << -QWIDGETSIZE_MAX;
    QTest::newRow("largest") << Limits::max() << QWIDGETSIZE_MAX;
    QTest::newRow("infinite") << Limits::infinity() << QWIDGETSIZE_MAX;
    QTest::newRow("infinite and negative") << -Limits::infinity() << -QWIDGETSIZE_MAX;
    QTest::newRow("no number") << Limits::quiet_NaN() << 0;
}

void TwipsTest::noLengthReachesFurtherThanAWidget()
{
    QFETCH(const double, twips);
    QFETCH(const int, pixels);
    const QWidget widget;
    QCOMPARE(Twips::toPixelsX(twips, widget), pixels);
    QCOMPARE(Twips::toPixelsY(twips, widget), pixels);
}

ORVT_TEST(TwipsTest)
#include "TwipsTest.moc"
