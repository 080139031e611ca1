#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QRectF>

class QTextBlock;

namespace ORVTListview {

class BoxLayers;
class RichTextBox;

// Where the characters of a box stand on the screen. Positions are those of its document.
class CharacterPlaces
{
public:
    explicit CharacterPlaces(const RichTextBox &box);

    // As high as the row; that of a line end, and behind the text, as wide as the caret. Out
    // of view it is told as if all rows on the way were equally high. Empty for what is folded
    // away.
    QRect placeOf(int position) const;

    // -1 where no character is shown.
    int characterAt(const QPoint &place) const;

    // Scrolls as little as is needed to show the characters from one place to another, the
    // first of them if there is no room for all, and unfolds their lines. The caret stays.
    void show(int from, int to) const;

private:
    QRectF lineOf(const QTextBlock &block) const;
    QRectF shownPlace(int position) const;
    bool unfold(int position) const;

    const RichTextBox &m_box;
    BoxLayers &m_layers;
};

} // namespace ORVTListview
