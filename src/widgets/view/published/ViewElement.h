#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>

namespace ORVTListview {

template <typename Handle, typename Held>
class HandleStore;

// What a row, a column and a node are to hosts: a handle that its list or tree makes on
// request and owns. The same row always has the same handle, whose address stays good
// until the list or tree is destroyed. Once its row has been removed, every member but
// isAlive() raises Error (ObjectNotSet): what was removed never comes back, not even
// one with its key.
template <typename Handle, typename Parts, typename Held>
class ViewElement
{
public:
    Q_DISABLE_COPY_MOVE(ViewElement) // its address is what hosts hold

    // False once it has been removed.
    bool isAlive() const { return m_held != nullptr; }

    // Its place in its collection, from 1 to Count(); changes when others before it come
    // or go.
    qint32 Index() const;

    // Empty, or unique in the collection: setKey raises Error (InvalidCall) for a key in
    // use. Case-sensitive.
    QString Key() const;
    void setKey(const QString &Key);

    // What is shown of it: in a row's first column, in a column's head, beside a node's
    // picture.
    QString Text() const;
    void setText(const QString &Text);

protected:
    ViewElement(Parts &parts, Held &held)
        : m_parts(&parts)
        , m_held(&held)
    {
    }
    ~ViewElement() = default;

    // Raises Error (ObjectNotSet), named for the member, once it is gone.
    Held &held(const char *member) const;

    // The same of its list's or tree's parts: only what lives may reach for them.
    Parts &partsFor(const char *member) const;

    // What a caller's handle stands for, which is to be one of these parts; null for null.
    static Held *heldOf(const ViewElement *handle, const Parts &parts, const QString &source);

    // Null where it is gone or another's, too.
    static Held *heldIn(const ViewElement *handle, const Parts &parts)
    {
        return handle && handle->m_parts == &parts ? handle->m_held : nullptr;
    }

    Parts *m_parts;
    Held *m_held; // null once it is gone

private:
    template <typename, typename>
    friend class HandleStore;

    void letGo() { m_held = nullptr; }
};

class ColumnHeader;
class ListItem;
class Node;
struct NodeTreeParts;
struct ReportColumn;
struct ReportListParts;
struct ReportRow;
struct TreeNode;

extern template class ORVT_EXPORT ViewElement<ColumnHeader, ReportListParts, ReportColumn>;
extern template class ORVT_EXPORT ViewElement<ListItem, ReportListParts, ReportRow>;
extern template class ORVT_EXPORT ViewElement<Node, NodeTreeParts, TreeNode>;

} // namespace ORVTListview
