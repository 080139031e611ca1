#pragma once

#include <QtWidgets/QAbstractItemView>

namespace ORVTListview {

// What the toolkit's views let only their subclasses do, for the parts of a view.
namespace OpenView {

bool isEditing(const QAbstractItemView &view);
void edit(QAbstractItemView &view, const QModelIndex &index);

// Closes the editor of a label, if one is open, without entering what it holds.
void dropEditor(QAbstractItemView &view);

// As the cell is drawn.
QStyleOptionViewItem cellOption(const QAbstractItemView &view, const QModelIndex &index);

// Now, instead of when the event loop comes to it.
void layOutItems(QAbstractItemView &view);

// Goes on by itself while the mouse stays near an edge.
void startScrolling(QAbstractItemView &view);
void stopScrolling(QAbstractItemView &view);

} // namespace OpenView
} // namespace ORVTListview
