#include "widgets/grid/CellLook.h"

#include "grid/rules/ShownCell.h"
#include "widgets/grid/CellTable.h"
#include "widgets/grid/GridRules.h"
#include "widgets/grid/StatePicture.h"
#include "widgets/view/ReportDelegate.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CellLook::CellLook(const Tools &tools)
    : m_tools(tools)
    , m_flash(tools.view)
{
    m_tools.delegate.setDresser(
        [this](QStyleOptionViewItem &cell, const QModelIndex &index) { dress(cell, index); });
}

CellLook::~CellLook()
{
    m_tools.delegate.setDresser({});
}

void CellLook::setLocalNumbers(bool on)
{
    m_hasLocalNumbers = on;
    m_tools.view.viewport()->update();
}

void CellLook::dress(QStyleOptionViewItem &cell, const QModelIndex &index) const
{
    if (isLocal(index.column())) {
        cell.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
        cell.text = shown(index.column(), cell.text);
    }
    dressState(cell, index);
    const qreal strength = m_flash.strength(index);
    if (strength <= 0)
        return;
    QColor ground = cell.palette.color(QPalette::Highlight);
    ground.setAlphaF(static_cast<float>(strength));
    cell.backgroundBrush = ground;
}

bool CellLook::isLocal(int column) const
{
    return m_hasLocalNumbers && m_tools.rules.rule(column).kind == CellRule::Number;
}

QString CellLook::shown(int column, const QString &text) const
{
    return isLocal(column) ? shownNumber(text, m_tools.view.locale()) : text;
}

// The word only where there is room for it: a tool tip has it, too. Beside a number it
// stands where numbers do not.
void CellLook::dressState(QStyleOptionViewItem &cell, const QModelIndex &index) const
{
    const auto state = static_cast<CellState>(index.data(CellTable::stateRole).toInt());
    if (state == CellState::Plain)
        return;
    const QStyle &style = *m_tools.view.style();
    const int side = style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &m_tools.view);
    const int gap = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, &m_tools.view) + 1;
    const bool hasOwn = cell.features.testFlag(QStyleOptionViewItem::HasDecoration);
    const auto group = m_tools.view.isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QIcon told = statePicture(state, cell.palette.color(group, QPalette::HighlightedText));
    cell.icon = hasOwn ? besideOneAnother(cell.icon, told, cell.direction) : told;
    cell.decorationSize = QSize(hasOwn ? 2 * (side + gap) : side, side);
    cell.features |= QStyleOptionViewItem::HasDecoration;
    const QColor ink = stateInk(state, cell.palette);
    if (ink.isValid() && !index.data(Qt::ForegroundRole).isValid())
        cell.palette.setColor(QPalette::Text, ink);
    const bool isRight = cell.displayAlignment.testFlag(Qt::AlignRight);
    const QString both = isRight ? u"%2  %1"_s : u"%1  %2"_s;
    const QString text =
        cell.text.isEmpty() ? stateWord(state) : both.arg(cell.text, stateWord(state));
    const int pictures = cell.decorationSize.width();
    if (cell.fontMetrics.horizontalAdvance(text) + pictures + 4 * gap <= cell.rect.width())
        cell.text = text;
}

} // namespace ORVTListview
