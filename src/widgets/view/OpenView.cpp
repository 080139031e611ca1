#include "widgets/view/OpenView.h"

#include <QtCore/QCoreApplication>

namespace ORVTListview::OpenView {
namespace {

// Never made: a subclass may name the members, and calling them is open to all.
class Opened : public QAbstractItemView
{
public:
    static bool isEditing(const QAbstractItemView &view)
    {
        return (view.*&Opened::state)() == EditingState;
    }

    static void beginEdit(QAbstractItemView &view, const QModelIndex &index)
    {
        using Edit = bool (QAbstractItemView::*)(const QModelIndex &, EditTrigger, QEvent *);
        (view.*static_cast<Edit>(&Opened::edit))(index, AllEditTriggers, nullptr);
    }

    static constexpr auto close = &Opened::closeEditor;
    static constexpr auto initOption = &Opened::initViewItemOption;
    static constexpr auto layOut = &Opened::executeDelayedItemsLayout;
    static constexpr auto startScrolling = &Opened::startAutoScroll;
    static constexpr auto stopScrolling = &Opened::stopAutoScroll;
};

} // namespace

bool isEditing(const QAbstractItemView &view)
{
    return Opened::isEditing(view);
}

void edit(QAbstractItemView &view, const QModelIndex &index)
{
    Opened::beginEdit(view, index);
}

// An editor without the focus has closed already.
void dropEditor(QAbstractItemView &view)
{
    QWidget *editor = isEditing(view) ? view.window()->focusWidget() : nullptr;
    if (!editor || !view.viewport()->isAncestorOf(editor))
        return;
    while (editor->parentWidget() != view.viewport())
        editor = editor->parentWidget();
    QCoreApplication::removePostedEvents(view.itemDelegate(), QEvent::MetaCall); // Enter's
    (view.*Opened::close)(editor, QAbstractItemDelegate::RevertModelCache);
}

QStyleOptionViewItem cellOption(const QAbstractItemView &view, const QModelIndex &index)
{
    QStyleOptionViewItem option;
    (view.*Opened::initOption)(&option);
    option.rect = view.visualRect(index);
    return option;
}

void layOutItems(QAbstractItemView &view)
{
    (view.*Opened::layOut)();
}

void startScrolling(QAbstractItemView &view)
{
    (view.*Opened::startScrolling)();
}

void stopScrolling(QAbstractItemView &view)
{
    (view.*Opened::stopScrolling)();
}

} // namespace ORVTListview::OpenView
