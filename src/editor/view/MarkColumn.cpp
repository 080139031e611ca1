#include "editor/view/MarkColumn.h"

#include "editor/view/Bookmarks.h"
#include "editor/view/NumberColumn.h"
#include "editor/view/Problems.h"
#include "editor/view/ViewColours.h"

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
}

int MarkColumn::width() const
{
    const bool isThere = m_sources.numbers.isShown() || m_sources.problems.isShown() ||
                         !m_sources.bookmarks.isEmpty();
    return isThere ? std::max(12, QFontMetrics(m_box.document()->defaultFont(), &m_box).height() *
                                      3 / 4)
                   : 0;
}

void MarkColumn::paint(QPainter &painter, const ShownLine &line, const QRect &cell)
{
    const QColor ground = ViewColours::groundOf(m_box);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_sources.bookmarks.isOn(line.block)) {
        painter.setBrush(Bookmarks::colourOn(ground));
        painter.drawRoundedRect(QRectF(cell).adjusted(1.5, 1.5, -1.5, -1.5), 2, 2);
    }
    if (const auto severity = m_sources.problems.severityOn(line.block)) {
        const qreal side = std::min(cell.width(), cell.height()) - 2;
        QRectF sign(0, 0, side, side);
        sign.moveCenter(QRectF(cell).center());
        const bool isOnBookmark = m_sources.bookmarks.isOn(line.block);
        painter.setPen(isOnBookmark ? QPen(ground, 1.5) : QPen(Qt::NoPen));
        painter.setBrush(Problems::colourOf(*severity, ground));
        drawSign(painter, *severity, sign);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

int MarkColumn::look(const QTextBlock &line) const
{
    const auto severity = m_sources.problems.severityOn(line);
    const int sign = severity ? 1 + static_cast<int>(*severity) : 0;
    return 2 * sign + (m_sources.bookmarks.isOn(line) ? 1 : 0);
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
    return m_sources.problems.textOn(line);
}

} // namespace ORVTListview
