#include "widgets/look/Colours.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ColoursTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void redIsTheLowByte();
    void systemColoursComeFromThePalette_data();
    void systemColoursComeFromThePalette();
    void everySystemColourHasAReadableText();
    void textStandsOutFromItsBackground_data();
    void textStandsOutFromItsBackground();

private:
    // A palette in which no two roles are alike.
    static QPalette palette()
    {
        QPalette result;
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            for (int group = 0; group < QPalette::NColorGroups; ++group)
                result.setColor(QPalette::ColorGroup(group), QPalette::ColorRole(role),
                                QColor(role * 10, group * 10, 7));
        }
        return result;
    }
};

void ColoursTest::redIsTheLowByte()
{
    QCOMPARE(Colours::toColor(0x00112233, {}), QColor(0x33, 0x22, 0x11));
    QCOMPARE(Colours::fromColor(QColor(0x33, 0x22, 0x11)), 0x00112233);
    QCOMPARE(Colours::fromColor(QColor(255, 255, 255, 10)), 0x00ffffff);
    QCOMPARE(Colours::toColor(0x7f112233, {}), QColor(0x33, 0x22, 0x11));
    QCOMPARE(Colours::windowBackground, -2147483643);
    QCOMPARE(Colours::windowText, -2147483640);
}

void ColoursTest::systemColoursComeFromThePalette_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::newRow("window background") << 5 << QPalette::Base;
    QTest::newRow("window text") << 8 << QPalette::Text;
    QTest::newRow("highlight") << 13 << QPalette::Highlight;
    QTest::newRow("highlighted text") << 14 << QPalette::HighlightedText;
    QTest::newRow("button") << 15 << QPalette::Button;
    QTest::newRow("button text") << 18 << QPalette::ButtonText;
    QTest::newRow("tool tip text") << 23 << QPalette::ToolTipText;
    QTest::newRow("tool tip") << 24 << QPalette::ToolTipBase;
    QTest::newRow("unknown") << 25 << QPalette::Text;
    QTest::newRow("far out") << 0x7fffffff << QPalette::Text;
}

void ColoursTest::systemColoursComeFromThePalette()
{
    QFETCH(int, number);
    QFETCH(QPalette::ColorRole, role);
    const auto colour = static_cast<qint32>(0x80000000U | static_cast<quint32>(number));
    QCOMPARE(Colours::toColor(colour, palette()), palette().color(role));
    const QColor grey = palette().color(QPalette::Disabled, QPalette::Text);
    QCOMPARE(Colours::toColor(static_cast<qint32>(0x80000011U), palette()), grey);
}

void ColoursTest::everySystemColourHasAReadableText()
{
    for (quint32 number = 0; number < 32; ++number) {
        const auto colour = static_cast<qint32>(0x80000000U | number);
        const QColor text = Colours::textOn(colour, palette());
        if (text == palette().color(QPalette::Text))
            continue; // a number without a colour, or a background of text
        QVERIFY(text != Colours::toColor(colour, palette()));
    }
    QCOMPARE(Colours::textOn(Colours::windowBackground, palette()),
             palette().color(QPalette::Text));
}

void ColoursTest::textStandsOutFromItsBackground_data()
{
    QTest::addColumn<int>("background");
    QTest::addColumn<bool>("white");
    QTest::newRow("black") << 0x000000 << true;
    QTest::newRow("white") << 0xffffff << false;
    QTest::newRow("light grey") << 0xdfdfdf << false;
    QTest::newRow("dark blue") << 0x800000 << true;
    QTest::newRow("red") << 0x0000ff << false;
    QTest::newRow("yellow") << 0x00ffff << false;
    QTest::newRow("dark red") << 0x000080 << true;
}

void ColoursTest::textStandsOutFromItsBackground()
{
    QFETCH(int, background);
    QFETCH(bool, white);
    QCOMPARE(Colours::textOn(background, {}), white ? QColor(Qt::white) : QColor(Qt::black));
}

ORVT_TEST(ColoursTest)
#include "ColoursTest.moc"
