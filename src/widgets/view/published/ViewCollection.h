#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>

namespace ORVTListview {

// All rows or columns of a list, or all nodes of a tree. It lives as long as the list or
// tree. Indexes count from 1; keys are case-sensitive. An index or key that is not there
// raises Error (SubscriptOutOfRange, InvalidCall).
template <typename Handle, typename Parts>
class ViewCollection
{
public:
    Q_DISABLE_COPY_MOVE(ViewCollection) // the view's own

    // How many there are.
    qint32 Count() const;

    // The one at an index or with a key. Its collection owns it.
    Handle *Item(qint32 Index) const;
    Handle *Item(const QString &Key) const;

    // Remove one, or all. Their handles then raise Error (ObjectNotSet).
    void Remove(qint32 Index);
    void Remove(const QString &Key);
    void Clear();

protected:
    explicit ViewCollection(Parts &parts)
        : m_parts(parts)
    {
    }
    ~ViewCollection() = default;

    // Raise Error, named for the member, when there is no such one.
    int positionAt(qint32 index, const char *member) const; // from 0
    auto &heldWith(const QString &key, const char *member) const;

    Parts &m_parts;
};

class ColumnHeader;
class ListItem;
class Node;
struct NodeTreeParts;
struct ReportListParts;

extern template class ORVT_EXPORT ViewCollection<ColumnHeader, ReportListParts>;
extern template class ORVT_EXPORT ViewCollection<ListItem, ReportListParts>;
extern template class ORVT_EXPORT ViewCollection<Node, NodeTreeParts>;

} // namespace ORVTListview
