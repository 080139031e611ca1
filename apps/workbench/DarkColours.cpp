#include "DarkColours.h"

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

namespace ORVTListview {
namespace {

constexpr QRgb darkGround = 0x1e1f22;
constexpr QRgb darkWindow = 0x2b2d30;
constexpr QRgb darkRaised = 0x393b40; // what stands over the window
constexpr QRgb lightText = 0xdfe1e5;
constexpr QRgb dimmedText = 0x80838a;

QPalette darkPalette()
{
    const QColor window(darkWindow);
    const QColor text(lightText);
    QPalette palette(text, window, window.lighter(150), QColor(darkGround).darker(150),
                     window.lighter(130), text, Qt::white, QColor(darkGround), window);
    palette.setColor(QPalette::Button, QColor(darkRaised));
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, QColor(darkRaised));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(dimmedText));
    palette.setColor(QPalette::Highlight, QColor(0x2f65ca));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6b9bfa));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, QColor(dimmedText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, window.lighter(130));
    return palette;
}

} // namespace

void useDarkColours()
{
    QApplication::setStyle(QStringLiteral("Fusion")); // which draws with the palette
    QPalette palette = darkPalette();
    QApplication::setPalette(palette);
    palette.setColor(QPalette::Base, QColor(darkRaised));
    palette.setColor(QPalette::Disabled, QPalette::Light, QColor(darkRaised)); // no etching
    QApplication::setPalette(palette, "QMenu");
}

} // namespace ORVTListview
