#include "widgets/look/SelectionLook.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

const QAbstractItemView *viewOf(const QWidget *widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget);
    return view || !widget ? view : qobject_cast<const QAbstractItemView *>(widget->parentWidget());
}

} // namespace

// No style tells it; this one does so in all views but tables.
bool isSelectionLight(const QWidget *widget)
{
    const QAbstractItemView *view = viewOf(widget);
    return view && !qobject_cast<const QTableView *>(view) &&
           view->style()->name() == "windowsvista"_L1;
}

QPalette::ColorRole selectedTextRole(const QWidget *widget)
{
    return isSelectionLight(widget) ? QPalette::Text : QPalette::HighlightedText;
}

} // namespace ORVTListview
