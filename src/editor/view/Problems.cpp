#include "editor/view/Problems.h"

#include "editor/view/LayerOrder.h"
#include "editor/view/LineMoves.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"
#include "widgets/box/LinePlaces.h"

#include <QtCore/QStringList>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

QTextCursor placeOf(const Problem &problem, QTextDocument &text)
{
    const QTextBlock line =
        text.findBlockByNumber(std::clamp(problem.line - 1, 0, text.blockCount() - 1));
    const int length = line.length() - 1;
    const int from = std::clamp(problem.from, 0, length);
    const int rest = length - from;
    QTextCursor place(line);
    place.setPosition(line.position() + from);
    place.setPosition(place.position() +
                          (problem.length > 0 ? std::min(problem.length, rest) : rest),
                      QTextCursor::KeepAnchor);
    return place;
}

constexpr int waveStep = 2;
constexpr int waveHeight = 4; // with the width of its line

// A long wave, of which others are cut: drawn each by itself they cost much.
QPixmap waveOf(const QColor &colour, qreal ratio)
{
    constexpr int length = 100 * waveStep;
    QPixmap wave((QSizeF(length, waveHeight) * ratio).toSize());
    wave.setDevicePixelRatio(ratio);
    wave.fill(Qt::transparent);
    QList<QPointF> points;
    for (int x = -waveStep; x <= length + waveStep; x += waveStep)
        points.append({qreal(x), points.size() % 2 == 0 ? 0.75 : waveHeight - 1.25});
    QPainter painter(&wave);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.25));
    painter.drawPolyline(points.constData(), static_cast<int>(points.size()));
    return wave;
}

} // namespace

bool Problems::Kept::touches(const QTextBlock &line) const
{
    return place.selectionStart() < line.position() + line.length() &&
           place.selectionEnd() >= line.position();
}

Problem Problems::Kept::now() const
{
    Problem now = problem;
    const QTextBlock line = place.document()->findBlock(place.selectionStart());
    now.line = line.blockNumber() + 1;
    now.from = place.selectionStart() - line.position();
    now.length = place.selectionEnd() - place.selectionStart();
    return now;
}

Problems::Problems(QPlainTextEdit &box, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::problems)
    , m_box(box)
{
}

void Problems::set(const QList<Problem> &problems)
{
    m_kept.clear();
    for (const Problem &problem : problems) {
        const QTextCursor place = placeOf(problem, *m_box.document());
        m_kept.append({problem, place, place.hasSelection()});
    }
    sort();
    const bool areThere = !m_kept.isEmpty();
    if (areThere && !isShown()) {
        connect(m_box.document(), &QTextDocument::contentsChange, this, &Problems::noteChange);
    } else if (!areThere && isShown()) {
        m_box.document()->disconnect(this);
    }
    setShown(areThere);
    if (layers())
        layers()->updateLines([](const QTextBlock &) { return true; });
    Q_EMIT changed();
}

void Problems::sort()
{
    std::stable_sort(m_kept.begin(), m_kept.end(), [](const Kept &one, const Kept &other) {
        return one.place.selectionStart() < other.place.selectionStart();
    });
}

void Problems::holdLines(const MovedLines &lines)
{
    m_held.clear();
    if (lines.from.isEmpty())
        return;
    for (const Kept &kept : std::as_const(m_kept))
        m_held.append(kept.now());
}

void Problems::putBack(const MovedLines &lines)
{
    QList<Problem> held = std::exchange(m_held, {});
    if (held.isEmpty() || held.size() != m_kept.size())
        return;
    const QList<int> places = lines.places();
    for (qsizetype i = 0; i < m_kept.size(); ++i) {
        const int line = held[i].line - 1;
        if (!lines.contains(line) || (m_kept[i].hasText && held[i].length == 0))
            continue;
        held[i].line = places[line - lines.first] + 1;
        m_kept[i].place = placeOf(held[i], *m_box.document());
        if (held[i].length == 0)
            m_kept[i].place.setPosition(m_kept[i].place.anchor());
    }
    sort();
}

// When the caret is in its place, too.
void Problems::tellMoved(const MovedLines &lines)
{
    if (!lines.from.isEmpty() && !m_kept.isEmpty())
        Q_EMIT changed();
}

// With the whole text its problems go; what shows them follows when the text is whole.
void Problems::noteChange(int, int removed, int)
{
    if (removed == 0 || m_box.document()->characterCount() > 1)
        return;
    m_kept.clear();
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_kept.isEmpty())
                set({});
        },
        Qt::QueuedConnection);
}

QList<Problem> Problems::list() const
{
    QList<Problem> problems;
    for (const Kept &kept : m_kept) {
        if (kept.isThere())
            problems.append(kept.now());
    }
    return problems;
}

Problem Problems::goTo(const Kept &kept)
{
    Problem problem = kept.now();
    QTextCursor caret = m_box.textCursor();
    caret.setPosition(kept.place.selectionStart());
    const KeptView view(m_box);
    m_box.setTextCursor(caret);
    return problem;
}

std::optional<Problem> Problems::goToNext()
{
    const int caret = m_box.textCursor().position();
    const Kept *first = nullptr;
    for (const Kept &kept : std::as_const(m_kept)) {
        if (!kept.isThere())
            continue;
        if (kept.place.selectionStart() > caret)
            return goTo(kept);
        if (!first)
            first = &kept;
    }
    return first ? std::optional(goTo(*first)) : std::nullopt;
}

std::optional<Problem> Problems::goToPrevious()
{
    const int caret = m_box.textCursor().position();
    const Kept *last = nullptr;
    for (auto kept = m_kept.crbegin(); kept != m_kept.crend(); ++kept) {
        if (!kept->isThere())
            continue;
        if (kept->place.selectionStart() < caret)
            return goTo(*kept);
        if (!last)
            last = &*kept;
    }
    return last ? std::optional(goTo(*last)) : std::nullopt;
}

// Edits do not change which of two places comes first.
Problems::Place Problems::from(int position) const
{
    return std::partition_point(m_kept.cbegin(), m_kept.cend(), [=](const Kept &kept) {
        return kept.place.selectionStart() < position;
    });
}

QList<const Problems::Kept *> Problems::allOn(const QTextBlock &line) const
{
    QList<const Kept *> found;
    const Place end = from(line.position() + line.length());
    for (Place kept = from(line.position()); kept != end; ++kept) {
        if (kept->isThere())
            found.append(&*kept);
    }
    return found;
}

const Problems::Kept *Problems::worstOn(const QTextBlock &line) const
{
    const Kept *worst = nullptr;
    for (const Kept *kept : allOn(line)) {
        if (!worst || kept->problem.severity < worst->problem.severity)
            worst = kept;
    }
    return worst;
}

std::optional<ProblemSeverity> Problems::severityOn(const QTextBlock &line) const
{
    const Kept *worst = worstOn(line);
    return worst ? std::optional(worst->problem.severity) : std::nullopt;
}

std::optional<Problem> Problems::goToWorstOn(const QTextBlock &line)
{
    const Kept *worst = worstOn(line);
    return worst ? std::optional(goTo(*worst)) : std::nullopt;
}

QString Problems::textOn(const QTextBlock &line) const
{
    QStringList texts;
    for (const Kept *kept : allOn(line))
        texts.append(kept->problem.text);
    return texts.join(u'\n');
}

QList<LineMark> Problems::marks() const
{
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor error = colourOf(ProblemSeverity::Error, ground);
    const QColor warning = colourOf(ProblemSeverity::Warning, ground);
    const QColor hint = colourOf(ProblemSeverity::Hint, ground);
    const auto of = [&](ProblemSeverity severity) {
        return severity == ProblemSeverity::Error     ? error
               : severity == ProblemSeverity::Warning ? warning
                                                      : hint;
    };
    QList<LineMark> marks;
    for (const Kept &kept : m_kept) {
        if (kept.isThere())
            marks.append({kept.place.selectionStart(), of(kept.problem.severity)});
    }
    return marks;
}

QColor Problems::colourOf(ProblemSeverity severity, const QColor &ground)
{
    switch (severity) {
    case ProblemSeverity::Error:
        return ViewColours::errorOn(ground);
    case ProblemSeverity::Warning:
        return ViewColours::warningOn(ground);
    case ProblemSeverity::Hint:
        break;
    }
    return ViewColours::hintOn(ground);
}

void Problems::paintAbove(QPainter &painter, const ShownLines &lines)
{
    if (lines.isEmpty())
        return;
    const QColor ground = ViewColours::groundOf(m_box);
    const QTextBlock &last = lines.last().block;
    Place kept = from(lines.first().block.position());
    const Place end = from(last.position() + last.length());
    if (kept != m_kept.cbegin())
        --kept; // an Enter inside may have brought its end down
    for (; kept != end; ++kept) {
        for (const ShownLine &line : lines) {
            if (kept->isThere() && kept->touches(line.block))
                drawWaves(painter, *kept, line, colourOf(kept->problem.severity, ground));
        }
    }
}

QList<QRectF> Problems::placesIn(const ShownLine &line, const Kept &kept) const
{
    const int start = kept.place.selectionStart() - line.block.position();
    const int end = kept.place.selectionEnd() - line.block.position();
    return placesOf(line, {start, end - start});
}

void Problems::drawWaves(QPainter &painter, const Kept &kept, const ShownLine &line,
                         const QColor &colour)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    auto wave = m_waves.constFind(colour.rgb());
    if (wave == m_waves.constEnd() || wave->devicePixelRatio() != ratio)
        wave = m_waves.insert(colour.rgb(), waveOf(colour, ratio));
    for (const QRectF &place : placesIn(line, kept)) {
        const QRectF shown = place.intersected(QRectF(m_box.viewport()->rect()));
        painter.drawTiledPixmap(QRectF(shown.left(), shown.bottom() - waveHeight,
                                       std::max<qreal>(shown.width(), 3 * waveStep), waveHeight),
                                *wave);
    }
}

QString Problems::textAt(const QPoint &place, QRect *whole) const
{
    if (!layers() || !isShown())
        return {};
    for (const ShownLine &line : layers()->shownLines(place.y(), place.y() + 1)) {
        for (const Kept *kept : allOn(line.block)) {
            for (const QRectF &part : placesIn(line, *kept)) {
                if (!part.contains(place))
                    continue;
                if (whole)
                    *whole = part.toAlignedRect();
                return kept->problem.text;
            }
        }
    }
    return {};
}

} // namespace ORVTListview
