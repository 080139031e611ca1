#include "workbench/settings/Theme.h"

#include "widgets/look/Luminance.h"
#include "workbench/settings/DarkStyle.h"

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <utility>

namespace ORVTListview {
namespace {

constexpr QRgb darkGround = 0x1e1f22;
constexpr QRgb darkWindow = 0x2b2d30;
constexpr QRgb darkRaised = 0x393b40; // what stands over the window
constexpr QRgb lightText = 0xdfe1e5;
constexpr QRgb dimmedText = 0x80838a;
constexpr QRgb lightWindow = 0xefefef;
constexpr QRgb greyText = 0x767676;

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

QPalette lightPalette()
{
    const QColor window(lightWindow);
    QPalette palette(Qt::black, window, Qt::white, window.darker(160), window.darker(130),
                     Qt::black, Qt::white, Qt::white, window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::PlaceholderText, QColor(greyText));
    palette.setColor(QPalette::Highlight, QColor(0x308cc6));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, QColor(greyText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, window.darker(120));
    return palette;
}

void useSystem(const QString &style)
{
    QApplication::setStyle(style);
    QApplication::setPalette(QPalette(), "QMenu");
    QApplication::setPalette(QPalette()); // one that says nothing leaves it to the desktop
}

void useDark()
{
    QPalette palette = darkPalette();
    QApplication::setPalette(palette);
    palette.setColor(QPalette::Base, QColor(darkRaised));
    palette.setColor(QPalette::Disabled, QPalette::Light, QColor(darkRaised)); // no etching
    QApplication::setPalette(palette, "QMenu");
}

void show(Theme theme)
{
    static const QString style = QApplication::style()->name();
    static Theme shown = Theme::System;
    if (theme == shown)
        return;
    if (std::exchange(shown, theme) != Theme::System)
        useSystem(style);
    if (theme == Theme::System)
        return;
    if (theme == Theme::Dark) {
        QApplication::setStyle(new DarkStyle);
        useDark();
    } else {
        QApplication::setStyle(QStringLiteral("Fusion")); // which draws with the palette
        QApplication::setPalette(lightPalette());
    }
}

Theme chosen = Theme::System;
bool isDesktopDark = false;

// What the toolkit shows dark by itself stays its own.
void follow()
{
    if (chosen != Theme::System || !isDesktopDark)
        show(chosen);
    else if (!isDark(QApplication::palette().color(QPalette::Window)))
        show(Theme::Dark);
}

} // namespace

void useTheme(Theme theme)
{
    chosen = theme;
    follow();
}

void setDesktopDark(bool isDark)
{
    isDesktopDark = isDark;
    follow();
}

} // namespace ORVTListview
