#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QTextBlock>

#include <functional>

class QPainter;
class QRegion;
class QTextCharFormat;
class QWidget;

namespace ORVTListview {

class BoxLayers;

// A line of a box that is shown, at least in part, and where in the viewport.
struct ShownLine
{
    QTextBlock block;
    QRectF place; // as wide as the text; a line without wrapping may reach beyond
    QRectF area;  // of the viewport: where it is to be painted, when it is
};
using ShownLines = QList<ShownLine>;

// What paints on a box's ground, below or above its text, or in the margin beside it.
// Nothing of it is part of the text. The order tells what lies lower.
class BoxLayer
{
public:
    BoxLayer(BoxLayers &layers, int order);
    virtual ~BoxLayer();
    Q_DISABLE_COPY_MOVE(BoxLayer) // known to its box

    int order() const { return m_order; }
    bool isShown() const { return m_isShown; }
    void setShown(bool on);

    // The lines are those to be painted, from the top.
    virtual void paintBelow(QPainter &painter, const ShownLines &lines);
    virtual void paintAbove(QPainter &painter, const ShownLines &lines);

    // `strip` is the line's part of the margin.
    virtual void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip);

    // How far above and below a line it paints what it shows of it, in pixels, but in the
    // margin.
    virtual int reachBeyond() const;

protected:
    // Null once the box is gone.
    BoxLayers *layers() const { return m_layers; }

private:
    const QPointer<BoxLayers> m_layers;
    const int m_order;
    bool m_isShown = false;
};

// The layers of a box, and what the box lets them see of it. Costs nothing while no
// layer is shown.
class BoxLayers final : public QObject
{
    Q_OBJECT

public:
    // What only the box can tell or do.
    struct Reach
    {
        std::function<ShownLine()> firstLine;
        std::function<QRectF(const QTextBlock &block)> sizeOf;
        std::function<int(const QTextBlock &block)> reachBeyond;     // of its text, in pixels
        std::function<bool(const QTextBlock &block)> mayReachBeyond; // also if not laid out
        std::function<void(int beside, int below)> setMargins;
        std::function<void(const QFont &font)> showIn;
    };

    // Belongs to the box whose viewport this is.
    BoxLayers(QWidget &box, QWidget &viewport, const Reach &reach);

    static BoxLayers &of(const QWidget &box);

    void add(BoxLayer &layer);
    void remove(BoxLayer &layer);

    // From the top; all that are shown, or those of the given height.
    ShownLines shownLines() const;
    ShownLines shownLines(int top, int bottom) const;

    // Those that are to be painted there, each with its area. A line that is out of view is
    // one of them if it reaches into it.
    ShownLines linesIn(const QRegion &region) const;

    // Room beside the text, where its lines begin.
    void setMargin(int width);
    int margin() const { return m_margin; }

    // Room below the text, above the scroll bar.
    void setRoomBelow(int height);

    // The text as large as this, in percent of the box's font, which stays. Text that
    // states a size of its own keeps it.
    void setZoom(int percent);
    int zoom() const { return m_zoom; }

    // The font that text without one of its own is shown in.
    QFont shownFont() const;

    // To be called when the box has another font.
    void fitFont();

    // In which colour a text of the given one is painted, on a ground of its own, which is
    // invalid where it has none. Nothing for the colours that the text has.
    using TextColours = std::function<QColor(const QColor &text, const QColor &ground)>;
    void setTextColours(const TextColours &colours);
    const TextColours &textColours() const { return m_textColours; }

    // The colour of such a text as it is painted, in a box whose text has the given one.
    QColor shownColour(const QTextCharFormat &format, const QColor &plain) const;

    // Has a line shown that is folded away.
    void wantLine(const QTextBlock &line);

    // Has the lines painted again for which `concerns` is true.
    void updateLines(const std::function<bool(const QTextBlock &block)> &concerns);

    // Lines from linesIn.
    void paintBelow(const QRegion &region, const ShownLines &lines);
    void paintAbove(const QRegion &region, const ShownLines &lines);
    void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip);

Q_SIGNALS:
    void shownFontChanged();

    // Somebody is to see a line that is not shown.
    void hiddenLineWanted(const QTextBlock &line);

    // The margin of these lines looks other than before.
    void marginChanged(int top, int bottom);

private:
    using Paint = void (BoxLayer::*)(QPainter &painter, const ShownLines &lines);
    int layersReach() const;
    bool mayReachBeyond(const QTextBlock &line) const;
    ShownLine lineAbove() const;
    ShownLine lineBelow(const ShownLine &last) const;
    ShownLines linesAround(int top, int bottom) const;
    void paint(const QRegion &region, const ShownLines &lines, Paint how);

    QWidget &m_box;
    QWidget &m_viewport;
    const Reach m_reach;
    QList<BoxLayer *> m_layers;
    TextColours m_textColours;
    int m_margin = 0;
    int m_roomBelow = 0;
    int m_zoom = 100;
};

} // namespace ORVTListview
