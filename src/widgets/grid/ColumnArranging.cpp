#include "widgets/grid/ColumnArranging.h"

#include "grid/rules/ColumnLayoutText.h"
#include "widgets/grid/CellTable.h"
#include "widgets/look/Twips.h"

#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimer>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ORVTListview {

ColumnArranging::ColumnArranging(QTableView &view, CellTable &table)
    : m_view(view)
    , m_table(table)
{
    const QHeaderView *header = view.horizontalHeader();
    connect(header, &QHeaderView::sectionMoved, this, &ColumnArranging::noteByMouse);
    connect(header, &QHeaderView::sectionResized, this, &ColumnArranging::noteByMouse);
    connect(view.model(), &QAbstractItemModel::columnsInserted, this, &ColumnArranging::applySoon);
}

void ColumnArranging::setOn(bool on)
{
    if (on == m_isOn)
        return;
    m_isOn = on;
    QHeaderView &header = *m_view.horizontalHeader();
    if (on)
        m_wasMovable = header.sectionsMovable();
    header.setSectionsMovable(on || m_wasMovable);
}

void ColumnArranging::switchTable(const QString &name)
{
    m_shown = name;
    applySoon();
}

QString ColumnArranging::layout(const QString &table) const
{
    return m_layouts.value(table);
}

void ColumnArranging::setLayout(const QString &table, const QString &layout)
{
    const QString former = this->layout(table);
    if (layout.isEmpty())
        m_layouts.remove(table);
    else
        m_layouts.insert(table, layout);
    if (table != m_shown)
        return;
    takeOff(former);
    apply();
}

void ColumnArranging::setHidden(int column, bool hidden)
{
    if (hidden && !canHide(column))
        return;
    if (m_isWaiting)
        apply();
    m_layouts.insert(m_shown, layoutNow()); // knows its width
    m_view.setColumnHidden(column, hidden);
    note();
}

bool ColumnArranging::canHide(int column) const
{
    const QHeaderView &header = *m_view.horizontalHeader();
    return !header.isSectionHidden(column) && header.count() - header.hiddenSectionCount() > 1;
}

void ColumnArranging::fit(int column)
{
    if (m_isWaiting)
        apply();
    m_table.fitColumn(column);
    note();
}

// What the program does is not the user's.
void ColumnArranging::noteByMouse()
{
    if (!m_isWaiting && m_table.isHeaderHeld())
        note();
}

void ColumnArranging::note()
{
    if (!isOn() || m_isApplying)
        return;
    m_layouts.insert(m_shown, layoutNow());
    if (!std::exchange(m_isTelling, true))
        QMetaObject::invokeMethod(
            this, [this] { tell(); }, Qt::QueuedConnection);
}

// Once the user has let go: the header is at work till then, and cannot bear to be destroyed.
void ColumnArranging::tell()
{
    if (m_table.isHeaderHeld()) {
        QTimer::singleShot(100, this, &ColumnArranging::tell);
        return;
    }
    m_isTelling = false;
    if (m_follow)
        m_follow();
}

// What it has hidden is seen again, in the columns' own order.
void ColumnArranging::takeOff(const QString &layout)
{
    const QScopedValueRollback applying(m_isApplying, true);
    QHeaderView &header = *m_view.horizontalHeader();
    const QList<ColumnPlace> places = columnsOfLayoutText(layout);
    for (const ColumnPlace &place : places) {
        const int column = columnOf(place.key);
        if (column >= 0 && place.isHidden)
            header.setSectionHidden(column, false);
    }
    for (int column = 0; !places.isEmpty() && column < header.count(); ++column)
        header.moveSection(header.visualIndex(column), column);
}

void ColumnArranging::applySoon()
{
    if (!m_layouts.contains(m_shown) || std::exchange(m_isWaiting, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_isWaiting)
                apply();
        },
        Qt::QueuedConnection);
}

// What is hidden has the width that it had.
QString ColumnArranging::layoutNow() const
{
    const QHeaderView &header = *m_view.horizontalHeader();
    QHash<QString, int> former;
    for (const ColumnPlace &place : columnsOfLayoutText(layout(m_shown)))
        former.insert(place.key, place.width);
    QList<ColumnPlace> columns;
    for (int visual = 0; visual < header.count(); ++visual) {
        const int column = header.logicalIndex(visual);
        const QString key = m_table.columnKey(column);
        const bool isHidden = header.isSectionHidden(column);
        const double twips = Twips::fromPixelsX(
            isHidden ? header.defaultSectionSize() : header.sectionSize(column), m_view);
        const int now = std::max(1, static_cast<int>(std::lround(twips)));
        columns.append({key, isHidden ? former.value(key, now) : now, isHidden});
    }
    return columnLayoutText(columns);
}

int ColumnArranging::columnOf(const QString &key) const
{
    for (int column = 0; column < m_table.columns(); ++column) {
        if (m_table.columnKey(column) == key)
            return column;
    }
    return -1;
}

// Columns that the text does not name come behind the others.
void ColumnArranging::apply()
{
    m_isWaiting = false;
    const QScopedValueRollback applying(m_isApplying, true);
    QHeaderView &header = *m_view.horizontalHeader();
    int visual = 0;
    for (const ColumnPlace &place : columnsOfLayoutText(layout(m_shown))) {
        const int column = columnOf(place.key);
        if (column < 0)
            continue;
        header.moveSection(header.visualIndex(column), visual++);
        header.setSectionHidden(column, place.isHidden);
        header.resizeSection(column, Twips::toPixelsX(place.width, m_view));
    }
}

} // namespace ORVTListview
