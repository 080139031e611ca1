#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QRect>

class QRegion;
class QTableView;

namespace ORVTListview {

// The first two columns that are seen, which stay in sight while the others are scrolled
// sideways under them. They do so only where they leave a third of the viewport to the others.
// The view and its header have them elsewhere, and ask here how far they are from there.
class KeptColumns final : public QObject
{
public:
    explicit KeptColumns(QTableView &view)
        : m_view(view)
    {
    }

    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    // From the first to the last. None while nothing is scrolled.
    QList<int> columns() const;

    // Where they are in the viewport; empty without any.
    QRect area() const;

    // By how many pixels to the right a column is drawn, or the one that is seen at a place.
    int shift(int column) const;
    int shiftAt(int x) const;

    // Over what the view has drawn.
    void paint(const QRegion &region) const;

    // So that a cell is not under them.
    void uncover(const QModelIndex &cell) const;

    // The view has scrolled sideways, or something has changed the columns.
    void refresh() const;

private:
    void follow();
    void coverEditor() const;
    int shift() const;

    QTableView &m_view;
    bool m_isOn = false;
    bool m_follows = false;
};

} // namespace ORVTListview
