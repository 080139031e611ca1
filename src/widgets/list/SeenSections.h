#pragma once

#include "widgets/list/KeptColumns.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtWidgets/QHeaderView>

namespace ORVTListview {

// Where the sections of a header are seen: those that stay in sight are elsewhere than the
// toolkit has them. All are in its viewport.
class SeenSections
{
public:
    SeenSections(const QHeaderView &header, const KeptColumns &kept)
        : m_header(header)
        , m_kept(&kept)
    {
    }

    // Those that are now kept in sight.
    QList<int> kept() const { return m_kept ? m_kept->columns() : QList<int>(); }
    QRect keptArea() const
    {
        const QRect area = m_kept ? m_kept->area() : QRect();
        return {area.left(), 0, area.width(), m_header.viewport()->height()};
    }

    // By how much the toolkit has what is seen at a place further to the left.
    int shiftAt(int x) const { return m_kept ? m_kept->shiftAt(x) : 0; }

    // -1 where there is none.
    int columnAt(int x) const { return m_header.logicalIndexAt(x - shiftAt(x)); }
    QRect placeOf(int column) const
    {
        const int shift = m_kept ? m_kept->shift(column) : 0;
        return {m_header.sectionViewportPosition(column) + shift, 0, m_header.sectionSize(column),
                m_header.viewport()->height()};
    }

private:
    const QHeaderView &m_header;
    const QPointer<const KeptColumns> m_kept; // a list may go before a header that a host has
};

} // namespace ORVTListview
