#include "editor/view/Problems.h"

#include "editor/view/LayerOrder.h"
#include "editor/view/LineMoves.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"
#include "widgets/box/LinePlaces.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QStringList>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

KeptPlaces::Span placeOf(const Problem &problem, const QTextDocument &text)
{
    const QTextBlock line =
        text.findBlockByNumber(std::clamp(problem.line - 1, 0, text.blockCount() - 1));
    const int length = line.length() - 1;
    const int from = std::clamp(problem.from, 0, length);
    const int rest = length - from;
    const int start = line.position() + from;
    return {start, start + (problem.length > 0 ? std::min(problem.length, rest) : rest)};
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

Problems::Problems(RichTextBox &box, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::problems)
    , m_box(box)
    , m_places(*box.document(), KeptPlaces::Kind::Texts)
{
}

Problem Problems::now(qsizetype i) const
{
    Problem now = given(i);
    const KeptPlaces::Span place = m_places.at(i);
    const QTextBlock line = m_places.lineAt(i);
    now.line = line.blockNumber() + 1;
    now.from = place.from - line.position();
    now.length = place.to - place.from;
    return now;
}

void Problems::set(const QList<Problem> &problems)
{
    m_given = problems;
    QList<KeptPlaces::Span> places;
    places.reserve(problems.size());
    for (const Problem &problem : problems)
        places.append(placeOf(problem, *m_box.document()));
    m_places.set(places);
    const bool areThere = !problems.isEmpty();
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

void Problems::holdLines(const MovedLines &lines)
{
    m_held = lines.from.isEmpty() ? QList<Problem>() : m_given;
    for (qsizetype i = 0; i < m_held.size(); ++i)
        m_held[m_places.nameAt(i)] = now(i);
}

void Problems::putBack(const MovedLines &lines)
{
    QList<Problem> held = std::exchange(m_held, {});
    if (held.isEmpty() || held.size() != m_places.size())
        return;
    const QList<int> newLines = lines.places();
    QList<KeptPlaces::Span> places = m_places.byName();
    for (qsizetype i = 0; i < held.size(); ++i) {
        Problem &problem = held[i];
        if (!lines.contains(problem.line - 1))
            continue;
        problem.line = newLines[problem.line - 1 - lines.first] + 1;
        places[i] = placeOf(problem, *m_box.document());
        if (problem.length == 0)
            places[i].to = places[i].from;
    }
    m_places.put(places);
}

// When the caret is in its place, too.
void Problems::tellMoved(const MovedLines &lines)
{
    if (!lines.from.isEmpty() && !m_places.isEmpty())
        Q_EMIT changed();
}

// With the whole text its problems go; what shows them follows when the text is whole.
void Problems::noteChange(int from, int removed, int added)
{
    if (m_box.keepsText())
        return m_places.noteLetters(from, added);
    if (removed == 0 || m_box.document()->characterCount() > 1)
        return m_places.noteChange(from, removed, added);
    m_given.clear();
    m_places.set({});
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_given.isEmpty())
                set({});
        },
        Qt::QueuedConnection);
}

QList<Problem> Problems::list() const
{
    QList<Problem> problems;
    for (qsizetype i = 0; i < m_places.size(); ++i) {
        if (isThere(i))
            problems.append(now(i));
    }
    return problems;
}

Problem Problems::goTo(qsizetype i)
{
    Problem problem = now(i);
    QTextCursor caret = m_box.textCursor();
    caret.setPosition(m_places.at(i).from);
    const KeptView view(m_box);
    m_box.setTextCursor(caret);
    return problem;
}

std::optional<Problem> Problems::goToNext()
{
    const qsizetype count = m_places.size();
    const qsizetype next = m_places.firstFrom(m_box.textCursor().position() + 1);
    for (qsizetype i = 0; i < count; ++i) {
        if (const qsizetype place = (next + i) % count; isThere(place))
            return goTo(place);
    }
    return {};
}

std::optional<Problem> Problems::goToPrevious()
{
    const qsizetype count = m_places.size();
    const qsizetype behind = m_places.firstFrom(m_box.textCursor().position());
    for (qsizetype i = 1; i <= count; ++i) {
        if (const qsizetype place = (behind - i + count) % count; isThere(place))
            return goTo(place);
    }
    return {};
}

QList<qsizetype> Problems::allOn(const QTextBlock &line) const
{
    QList<qsizetype> found;
    const qsizetype end = m_places.firstFrom(line.position() + line.length());
    for (qsizetype i = m_places.firstFrom(line.position()); i < end; ++i) {
        if (isThere(i))
            found.append(i);
    }
    return found;
}

std::optional<qsizetype> Problems::worstOn(const QTextBlock &line) const
{
    std::optional<qsizetype> worst;
    for (const qsizetype i : allOn(line)) {
        if (!worst || given(i).severity < given(*worst).severity)
            worst = i;
    }
    return worst;
}

std::optional<ProblemSeverity> Problems::severityOn(const QTextBlock &line) const
{
    const auto worst = worstOn(line);
    return worst ? std::optional(given(*worst).severity) : std::nullopt;
}

std::optional<Problem> Problems::goToWorstOn(const QTextBlock &line)
{
    const auto worst = worstOn(line);
    return worst ? std::optional(goTo(*worst)) : std::nullopt;
}

QString Problems::textOn(const QTextBlock &line) const
{
    QStringList texts;
    for (const qsizetype i : allOn(line))
        texts.append(given(i).text);
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
    for (qsizetype i = 0; i < m_places.size(); ++i) {
        if (isThere(i))
            marks.append({m_places.at(i).from, of(given(i).severity)});
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
    qsizetype i = m_places.firstFrom(lines.first().block.position());
    const qsizetype end = m_places.firstFrom(last.position() + last.length());
    i = std::max<qsizetype>(i - 1, 0); // an Enter inside may have brought its end down
    for (; i < end; ++i) {
        for (const ShownLine &line : lines)
            paint(painter, line, i, ground);
    }
}

void Problems::paint(QPainter &painter, const ShownLine &line, qsizetype i, const QColor &ground)
{
    const int start = line.block.position();
    const KeptPlaces::Span place = m_places.at(i);
    if (isThere(i) && place.from < start + line.block.length() && place.to >= start)
        drawWaves(painter, placesIn(line, i), colourOf(given(i).severity, ground));
}

QList<QRectF> Problems::placesIn(const ShownLine &line, qsizetype i) const
{
    const KeptPlaces::Span place = m_places.at(i);
    return placesOf(line, {place.from - line.block.position(), place.to - place.from});
}

void Problems::drawWaves(QPainter &painter, const QList<QRectF> &places, const QColor &colour)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    auto wave = m_waves.constFind(colour.rgb());
    if (wave == m_waves.constEnd() || wave->devicePixelRatio() != ratio)
        wave = m_waves.insert(colour.rgb(), waveOf(colour, ratio));
    // Cut by the view, not fitted into it: what is scrolled is not painted again.
    for (const QRectF &place : places) {
        const QRectF whole(place.left(), place.bottom() - waveHeight,
                           std::max<qreal>(place.width(), 3 * waveStep), waveHeight);
        const QRectF shown = whole.intersected(QRectF(m_box.viewport()->rect()));
        if (!shown.isEmpty())
            painter.drawTiledPixmap(shown, *wave, shown.topLeft() - whole.topLeft());
    }
}

QString Problems::textAt(const QPoint &place, QRect *whole) const
{
    if (!layers() || !isShown())
        return {};
    for (const ShownLine &line : layers()->shownLines(place.y(), place.y() + 1)) {
        for (const qsizetype i : allOn(line.block)) {
            for (const QRectF &part : placesIn(line, i)) {
                if (!part.contains(place))
                    continue;
                if (whole)
                    *whole = part.toAlignedRect();
                return given(i).text;
            }
        }
    }
    return {};
}

} // namespace ORVTListview
