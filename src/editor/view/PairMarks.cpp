#include "editor/rules/structure/Brackets.h"
#include "editor/view/BlockSearch.h"
#include "editor/view/CaretLayer.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/RoundedMark.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/LinePlaces.h"

#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

struct Mark
{
    BlockSearch::Place place;
    bool isWrong = false;

    friend bool operator==(const Mark &, const Mark &) = default;
};

// Lines from the first to the last, drawn together in the margin.
struct Span
{
    int first = 0;
    int last = -1;

    bool holds(int line) const { return line >= first && line <= last; }

    friend bool operator==(const Span &, const Span &) = default;
};

struct Marks
{
    QList<Mark> words;
    Span span;

    bool standIn(int line) const
    {
        return std::any_of(words.begin(), words.end(),
                           [line](const Mark &mark) { return mark.place.line == line; });
    }

    bool touches(const QTextBlock &line) const
    {
        return span.holds(line.blockNumber()) || standIn(line.blockNumber());
    }

    friend bool operator==(const Marks &, const Marks &) = default;
};

class PairMarks final : public CaretLayer
{
public:
    PairMarks(QPlainTextEdit &box, BoxLayers &layers)
        : CaretLayer(box, layers, LayerOrder::pairs)
    {
        connect(&m_block, &BlockSearch::changed, this, &PairMarks::find);
    }

    void paintBelow(QPainter &painter, const ShownLines &lines) override;
    void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip) override;

private:
    void follow() override;
    void forget() override;
    void find();

    BlockSearch m_block;
    Marks m_marks;
};

void PairMarks::forget()
{
    m_block.clear();
    m_marks = {};
}

void PairMarks::follow()
{
    const QTextCursor caret = m_box.textCursor();
    if (caret.hasSelection())
        m_block.clear();
    else
        m_block.start(caret.block(), caret.positionInBlock());
    find();
}

QList<Mark> bracketsAt(const QTextCursor &caret)
{
    const auto pair = bracketAt(caret.block().text(), caret.positionInBlock());
    if (!pair)
        return {};
    const auto mark = [&](qsizetype place, bool isWrong) {
        return Mark{{caret.blockNumber(), {static_cast<qint32>(place), 1}}, isWrong};
    };
    if (!pair->partner)
        return {mark(pair->bracket, true)};
    return {mark(pair->bracket, false), mark(*pair->partner, false)};
}

void PairMarks::find()
{
    const QTextCursor caret = m_box.textCursor();
    Marks marks;
    if (!caret.hasSelection())
        marks.words = bracketsAt(caret);
    for (const BlockSearch::Place &place : m_block.places())
        marks.words.append({place, m_block.isBroken() && place == m_block.places().first()});
    if (!m_block.places().isEmpty())
        marks.span = {m_block.firstLine(), m_block.lastLine()};
    show(m_marks, std::move(marks));
}

void PairMarks::paintBelow(QPainter &painter, const ShownLines &lines)
{
    if (m_marks.words.isEmpty())
        return;
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor right = m_box.palette().color(QPalette::Highlight);
    const QColor wrong = ViewColours::errorOn(ground);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ShownLine &line : lines) {
        const int number = line.block.blockNumber();
        for (const Mark &mark : std::as_const(m_marks.words)) {
            if (mark.place.line != number)
                continue;
            const QColor colour = mark.isWrong ? wrong : right;
            painter.setPen(ViewColours::onGround(colour, ground, ViewColours::visible));
            painter.setBrush(ViewColours::tinted(ground, colour));
            for (const QRectF &place : placesOf(line, mark.place.piece))
                drawRoundedMark(painter, place);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// A line down the margin, with a foot at each word.
void PairMarks::paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip)
{
    const int number = line.block.blockNumber();
    if (!m_marks.span.holds(number))
        return;
    constexpr int thick = 2;
    constexpr int foot = 5;
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor colour = m_block.isBroken()
                              ? ViewColours::errorOn(ground)
                              : ViewColours::onGround(m_box.palette().color(QPalette::Highlight),
                                                      ground, ViewColours::visible);
    const bool isMirrored = m_box.isRightToLeft();
    const auto fill = [&](int fromEdge, int top, int width, int height) {
        const int left =
            isMirrored ? strip.left() + fromEdge : strip.right() + 1 - fromEdge - width;
        painter.fillRect(left, top, width, height, colour);
    };
    const int middle = strip.center().y();
    const int top = number == m_marks.span.first ? middle : strip.top();
    const int bottom = number == m_marks.span.last ? middle + thick : strip.bottom() + 1;
    fill(0, top, thick, bottom - top);
    if (m_marks.standIn(number))
        fill(0, middle, foot, thick);
}

} // namespace

std::unique_ptr<CaretLayer> pairLayer(QPlainTextEdit &box, BoxLayers &layers)
{
    return std::make_unique<PairMarks>(box, layers);
}

} // namespace ORVTListview
