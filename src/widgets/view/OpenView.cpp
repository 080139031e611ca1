#include "widgets/view/OpenView.h"

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
