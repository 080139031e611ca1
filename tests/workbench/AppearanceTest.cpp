// The colours of a project on a dark ground.

#include "workbench/Appearance.h"

#include "support/TestProgram.h"

#include <QtGui/QPalette>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Painted = std::array<QRgb, 8>;

constexpr std::array classes = {
    &RichTextSettings::VariableColor,     &RichTextSettings::ConstantColor,
    &RichTextSettings::InputColor,        &RichTextSettings::OutputColor,
    &RichTextSettings::ReservedWordColor, &RichTextSettings::CommentColor,
    &RichTextSettings::nviFPAColor,       &RichTextSettings::nvoFPAColor};

QPalette dark()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    return palette;
}

RichTextSettings painted(const Painted &colours)
{
    RichTextSettings settings;
    settings.BackColor = -1;
    for (std::size_t each = 0; each < classes.size(); ++each) {
        const QRgb colour = colours[each];
        settings.*classes[each] = qBlue(colour) << 16 | qGreen(colour) << 8 | qRed(colour);
    }
    return settings;
}

int distance(qint32 one, qint32 other)
{
    int most = 0;
    for (const int part : {0, 8, 16})
        most = std::max(most, std::abs((one >> part & 0xFF) - (other >> part & 0xFF)));
    return most;
}

} // namespace

class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatDiffersOnPaperDiffersOnDark_data()
    {
        QTest::addColumn<Painted>("colours");
        QTest::newRow("reds") << Painted{0x0060d0, 0x800000, 0xc00000, 0x8000ff,
                                         0x00008b, 0x008000, 0x6b6b00, 0xa0509a};
        QTest::newRow("one hue") << Painted{0x100000, 0x200000, 0x300000, 0x400000,
                                            0x500000, 0x600000, 0x700000, 0x800000};
        QTest::newRow("greys") << Painted{0x0060d0, 0x000000, 0x202020, 0x8000ff,
                                          0x404040, 0x008000, 0x6b6b00, 0x606060};
    }

    void whatDiffersOnPaperDiffersOnDark()
    {
        QFETCH(const Painted, colours);
        const RichTextSettings shown = legibleOn(dark(), painted(colours));
        for (std::size_t one = 0; one < classes.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other)
                QVERIFY(distance(shown.*classes[one], shown.*classes[other]) >= 32);
        }
    }

    void whatIsOneColourOnPaperStaysOne()
    {
        const RichTextSettings shown =
            legibleOn(dark(), painted({0x0060d0, 0x800000, 0xc00000, 0x8000ff, 0x00008b, 0x008000,
                                       0x808000, 0x808000}));
        QCOMPARE(shown.nviFPAColor, shown.nvoFPAColor);
    }
};

ORVT_TEST(AppearanceTest)
#include "AppearanceTest.moc"
