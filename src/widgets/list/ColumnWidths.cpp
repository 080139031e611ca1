#include "widgets/list/ColumnWidths.h"

#include "widgets/list/ReportModel.h"
#include "widgets/look/CellText.h"
#include "widgets/look/Twips.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace ORVTListview {
namespace {

// What a column is wider than its texts, in twips. The first has room for the
// picture of a row.
constexpr double margin = 200;
constexpr double firstMargin = 375;
constexpr double maxTwips = 1'000'000;

// Between a picture or a box and what is behind it.
int gap(const QWidget &view)
{
    return 2 * (view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1);
}

} // namespace

ColumnWidths::ColumnWidths(QTableView &view, const ReportModel &model)
    : m_view(view)
    , m_model(model)
{
}

ColumnWidths::~ColumnWidths() = default;

double ColumnWidths::width(int column) const
{
    int pixels = m_view.columnWidth(column);
    if (m_filling && column == m_model.columns() - 1)
        pixels += m_beside;
    return Twips::fromPixelsX(pixels, m_view);
}

void ColumnWidths::setWidth(int column, double twips)
{
    if (column == m_model.columns() - 1)
        m_filling = false;
    resize(column, Twips::toPixelsX(std::min(twips, maxTwips), m_view));
}

void ColumnWidths::fit()
{
    const QList<int> needed = neededWidths();
    for (int column = 0; column < needed.size(); ++column)
        setNeeded(column, needed.at(column));
}

void ColumnWidths::fit(int column)
{
    setNeeded(column, neededWidths().at(column));
}

void ColumnWidths::setNeeded(int column, int pixels)
{
    if (column < m_model.columns() - 1) {
        resize(column, pixels);
        return;
    }
    m_lastNeeded = pixels;
    m_filling = true;
    m_keptIn = noWidth;
    refill();
}

void ColumnWidths::columnResized(int column)
{
    if (!m_resizing && column == m_model.columns() - 1)
        m_filling = false;
}

void ColumnWidths::refill()
{
    if (!m_filling)
        return;
    const int others = widthOfOthers();
    const int width = std::max(m_lastNeeded, m_view.viewport()->width() - others);
    m_beside = std::max(m_lastNeeded, m_view.width() - others) - width;
    resize(m_model.columns() - 1, width);
}

// Another header may bring or take away a scroll bar, too; that is no other list.
void ColumnWidths::viewportResized()
{
    if (m_keptIn == m_view.width())
        return;
    m_keptIn = noWidth;
    refill();
}

void ColumnWidths::headerReplaced(int column, bool isCut)
{
    m_keptIn = m_view.width();
    const int needed = neededForHeader(column);
    if (isCut)
        resize(column, std::max(needed, m_view.columnWidth(column)));
    if (column == m_model.columns() - 1)
        m_lastNeeded = std::max(m_lastNeeded, needed);
}

void ColumnWidths::resize(int column, int pixels)
{
    const QScopedValueRollback resizing(m_resizing, true);
    m_view.horizontalHeader()->resizeSection(column, pixels);
}

int ColumnWidths::widthOfOthers() const
{
    return m_view.horizontalHeader()->length() - m_view.columnWidth(m_model.columns() - 1);
}

QList<int> ColumnWidths::neededWidths()
{
    if (!m_texts || m_font != m_view.font()) {
        m_font = m_view.font();
        m_texts = std::make_unique<TextWidths>(m_font);
    }
    QList<int> needed;
    for (int column = 0; column < m_model.columns(); ++column)
        needed.append(neededForHeader(column));
    const Asked asked = askedByRows();
    for (int column = 0; column < needed.size(); ++column) {
        int beside = asked.hasStates.at(column) ? pictureWidth() : 0;
        if (column == 0 && asked.hasPictures)
            beside += pictureWidth();
        if (column == 0 && m_model.hasCheckBoxes())
            beside += boxWidth();
        int cells = withMargin(asked.texts.at(column), margin) + beside;
        if (column == 0)
            cells = std::max(cells, withMargin(asked.texts.at(0), firstMargin));
        needed[column] = std::max(needed.at(column), cells);
    }
    return needed;
}

int ColumnWidths::neededForHeader(int column) const
{
    const QFontMetrics metrics(m_view.horizontalHeader()->font());
    return withMargin(metrics.horizontalAdvance(cellText(m_model.column(column).text)), margin);
}

int ColumnWidths::withMargin(int pixels, double twips) const
{
    return Twips::toPixelsX(Twips::fromPixelsX(pixels, m_view) + twips, m_view);
}

ColumnWidths::Asked ColumnWidths::askedByRows()
{
    const int columns = m_model.columns();
    Asked asked{QList<int>(columns, 0), QList<bool>(columns, false)};
    for (int position = 0; position < m_model.rows(); ++position) {
        const ReportRow &row = m_model.row(position);
        for (int column = 0; column < columns; ++column)
            m_texts->widen(asked.texts[column], m_model.cellText(row, column));
        for (qsizetype column = std::min<qsizetype>(columns, row.states.size()); column-- > 0;)
            asked.hasStates[column] = asked.hasStates.at(column) || row.states.at(column) != 0;
        asked.hasPictures = asked.hasPictures || !row.content.picture.isEmpty();
    }
    m_texts->forgetTexts();
    return asked;
}

int ColumnWidths::pictureWidth() const
{
    return m_view.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &m_view) + gap(m_view);
}

int ColumnWidths::boxWidth() const
{
    return m_view.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &m_view) + gap(m_view);
}

} // namespace ORVTListview
