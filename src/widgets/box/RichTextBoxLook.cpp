// The colours of a box and its font.

#include <ORVTListview/RichTextBox.h>

#include "widgets/box/BoxLayers.h"
#include "widgets/box/BoxParts.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace ORVTListview {

namespace {

template <typename Value>
void setInFont(QWidget &box, void (QFont::*set)(Value), Value value)
{
    QFont changed = box.font();
    (changed.*set)(value);
    box.setFont(changed);
}

} // namespace

// The palette that the box has before it sets colours of its own.
QPalette RichTextBox::paletteAround() const
{
    const QWidget *parent = parentWidget();
    return parent ? parent->palette() : QApplication::palette(this);
}

qint32 RichTextBox::BackColor() const
{
    return d->backColor;
}

void RichTextBox::setBackColor(qint32 colour)
{
    d->backColor = colour;
    applyBackColor();
}

void RichTextBox::applyBackColor()
{
    const qint32 colour = d->backColor;
    const bool hasOwn = colour != Colours::windowBackground;
    if (!hasOwn && !d->hasOwnPalette)
        return;
    d->hasOwnPalette = hasOwn;
    QPalette own;
    if (hasOwn) {
        const QPalette around = paletteAround();
        own.setColor(QPalette::Base, Colours::toColor(colour, around));
        own.setColor(QPalette::Text, Colours::textOn(colour, around));
    }
    if (own != palette() || own.resolveMask() != palette().resolveMask())
        setPalette(own);
}

QString RichTextBox::FontName() const
{
    return font().family();
}

void RichTextBox::setFontName(const QString &name)
{
    if (!name.isEmpty())
        setInFont<const QString &>(*this, &QFont::setFamily, name);
}

float RichTextBox::FontSize() const
{
    return static_cast<float>(d->formats.pointSize());
}

void RichTextBox::setFontSize(float points)
{
    constexpr float largest = 1638; // what RTF programs take
    if (points > 0)
        setInFont(*this, &QFont::setPointSizeF, static_cast<double>(std::min(points, largest)));
}

bool RichTextBox::FontBold() const
{
    return font().bold();
}

void RichTextBox::setFontBold(bool bold)
{
    setInFont(*this, &QFont::setBold, bold);
}

bool RichTextBox::FontItalic() const
{
    return font().italic();
}

void RichTextBox::setFontItalic(bool italic)
{
    setInFont(*this, &QFont::setItalic, italic);
}

bool RichTextBox::FontUnderline() const
{
    return font().underline();
}

void RichTextBox::setFontUnderline(bool underline)
{
    setInFont(*this, &QFont::setUnderline, underline);
}

bool RichTextBox::FontStrikethrough() const
{
    return font().strikeOut();
}

void RichTextBox::setFontStrikethrough(bool strikethrough)
{
    setInFont(*this, &QFont::setStrikeOut, strikethrough);
}

void RichTextBox::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        d->formats.setFont(font());
        d->layers->fitFont();
    } else if (event->type() == QEvent::PaletteChange) {
        applyBackColor();
    }
}

} // namespace ORVTListview
