#include "widgets/look/SelectionLook.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
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

// What has no name, such as a style sheet, draws with the style that it owns, if any.
QString nameBehind(const QStyle *style)
{
    while (style && style->name().isEmpty())
        style = style->findChild<const QStyle *>(QString(), Qt::FindDirectChildrenOnly);
    return style ? style->name() : QString();
}

QString styleName(const QWidget &widget)
{
    QString own = nameBehind(widget.style());
    return own.isEmpty() ? nameBehind(QApplication::style()) : own;
}

} // namespace

// No style tells it; this one does so in all views but tables.
bool isSelectionLight(const QWidget *widget)
{
    const QAbstractItemView *view = viewOf(widget);
    return view && !qobject_cast<const QTableView *>(view) && styleName(*view) == "windowsvista"_L1;
}

QPalette::ColorRole selectedTextRole(const QWidget *widget)
{
    return isSelectionLight(widget) ? QPalette::Text : QPalette::HighlightedText;
}

} // namespace ORVTListview
