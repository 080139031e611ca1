#include "editor/view/MarkColumn.h"

#include "editor/view/Bookmarks.h"
#include "editor/view/HostMarks.h"
#include "editor/view/NumberColumn.h"
#include "editor/view/Problems.h"
#include "editor/view/ViewColours.h"

#include <QtCore/QStringList>
#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>

namespace ORVTListview {
namespace {

// Each of another shape, so that the colour is not needed.
void drawSign(QPainter &painter, ProblemSeverity severity, const QRectF &place)
{
    switch (severity) {
    case ProblemSeverity::Error:
        painter.drawEllipse(place);
        break;
    case ProblemSeverity::Warning:
        painter.drawPolygon(QPolygonF(
            {{place.center().x(), place.top()}, place.bottomRight(), place.bottomLeft()}));
        break;
    case ProblemSeverity::Hint:
        painter.drawRect(place.adjusted(1, 1, -1, -1));
        break;
    }
}

} // namespace

MarkColumn::MarkColumn(QPlainTextEdit &box, EditorMargin &margin, const Sources &sources)
    : m_box(box)
    , m_sources(sources)
{
    connect(&sources.problems, &Problems::changed, &margin, &EditorMargin::fit);
    connect(&sources.bookmarks, &Bookmarks::changed, &margin, &EditorMargin::fit);
    connect(&sources.hostMarks, &HostMarks::changed, &margin, &EditorMargin::fit);
}

int MarkColumn::width() const
{
    const bool isThere = m_sources.numbers.isShown() || m_sources.problems.isShown() ||
                         !m_sources.bookmarks.isEmpty() || !m_sources.hostMarks.isEmpty();
    return isThere ? std::max(12, QFontMetrics(m_box.document()->defaultFont(), &m_box).height() *
                                      3 / 4)
                   : 0;
}

// What is worst stands in the cell, a bookmark around it.
void MarkColumn::paint(QPainter &painter, const ShownLine &line, const QRect &cell)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_sources.bookmarks.isOn(line.block))
        paintBookmark(painter, cell);
    const qreal side = std::min(cell.width(), cell.height()) - 2;
    QRectF place(0, 0, side, side);
    place.moveCenter(QRectF(cell).center());
    if (m_sources.problems.severityOn(line.block))
        paintSign(painter, line.block, place);
    else if (const QIcon picture = m_sources.hostMarks.pictureOn(line.block); !picture.isNull())
        picture.paint(&painter, place.toAlignedRect());
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void MarkColumn::paintBookmark(QPainter &painter, const QRect &cell) const
{
    painter.setBrush(Bookmarks::colourOn(ViewColours::groundOf(m_box)));
    painter.drawRoundedRect(QRectF(cell).adjusted(1.5, 1.5, -1.5, -1.5), 2, 2);
}

void MarkColumn::paintSign(QPainter &painter, const QTextBlock &line, const QRectF &place) const
{
    const QColor ground = ViewColours::groundOf(m_box);
    const ProblemSeverity severity = *m_sources.problems.severityOn(line);
    const bool isOnBookmark = m_sources.bookmarks.isOn(line);
    painter.setPen(isOnBookmark ? QPen(ground, 1.5) : QPen(Qt::NoPen));
    painter.setBrush(Problems::colourOf(severity, ground));
    drawSign(painter, severity, place);
}

int MarkColumn::look(const QTextBlock &line) const
{
    const auto severity = m_sources.problems.severityOn(line);
    const int sign = severity ? 1 + static_cast<int>(*severity) : 0;
    return 4 * sign + (m_sources.bookmarks.isOn(line) ? 2 : 0) +
           (m_sources.hostMarks.isOn(line) ? 1 : 0);
}

bool MarkColumn::press(const QTextBlock &line)
{
    const auto problem = m_sources.problems.goToWorstOn(line);
    if (problem)
        Q_EMIT chosen(*problem);
    return problem.has_value();
}

QString MarkColumn::toolTip(const QTextBlock &line) const
{
    QStringList texts{m_sources.problems.textOn(line), m_sources.hostMarks.textOn(line)};
    texts.removeAll(QString());
    return texts.join(u'\n');
}

} // namespace ORVTListview
