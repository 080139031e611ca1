#include "widgets/grid/CellFlash.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int betweenFrames = 40;
constexpr qreal strongest = 0.5; // the text stays readable on it

} // namespace

CellFlash::CellFlash(QTableView &view)
    : m_view(view)
{
    m_clock.start();
    m_timer.setInterval(betweenFrames);
    connect(&m_timer, &QTimer::timeout, this, &CellFlash::fade);
    connect(view.model(), &QAbstractItemModel::dataChanged, this, &CellFlash::note);
    connect(view.model(), &QAbstractItemModel::modelReset, this, [this] { m_changed.clear(); });
}

void CellFlash::setOn(bool on)
{
    m_isOn = on;
    if (!std::exchange(m_changed, {}).isEmpty())
        m_view.viewport()->update();
}

// The style's own animations are short ones.
int CellFlash::duration() const
{
    constexpr int longer = 4;
    return longer *
           m_view.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_view);
}

void CellFlash::note(const QModelIndex &first, const QModelIndex &last, const QList<int> &roles)
{
    if (!m_isOn || !m_view.isVisible() || !roles.contains(Qt::DisplayRole) || duration() <= 0)
        return;
    const int top = m_view.rowAt(0);
    const int bottom = m_view.rowAt(m_view.viewport()->height() - 1);
    const int end = bottom < 0 ? m_view.model()->rowCount() - 1 : bottom;
    const qint64 now = m_clock.elapsed();
    for (int row = std::max(first.row(), top); top >= 0 && row <= std::min(last.row(), end);
         ++row) {
        for (int column = first.column(); column <= last.column(); ++column)
            m_changed.insert(m_view.model()->index(row, column), now);
    }
    if (!m_changed.isEmpty() && !m_timer.isActive())
        m_timer.start();
}

qreal CellFlash::strength(const QModelIndex &cell) const
{
    const auto changed = m_changed.isEmpty() ? m_changed.cend() : m_changed.constFind(cell);
    if (changed == m_changed.cend() || duration() <= 0)
        return 0;
    const qreal past = static_cast<qreal>(m_clock.elapsed() - *changed) / duration();
    return strongest * std::max(0.0, 1 - past);
}

void CellFlash::fade()
{
    const qint64 now = m_clock.elapsed();
    const int lasts = duration();
    for (auto cell = m_changed.begin(); cell != m_changed.end();) {
        const bool isThere = cell.key().isValid();
        if (isThere)
            m_view.update(cell.key());
        if (isThere && now - *cell <= lasts)
            ++cell;
        else
            cell = m_changed.erase(cell);
    }
    if (m_changed.isEmpty())
        m_timer.stop();
}

} // namespace ORVTListview
