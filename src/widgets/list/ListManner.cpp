#include "widgets/list/ListManner.h"

#include <ORVTListview/ReportList.h>

#include <tuple>

namespace ORVTListview {
namespace {

constexpr std::tuple fields(&ListManner::editsLabels, &ListManner::isHeaderVisible,
                            &ListManner::hasCheckBoxes, &ListManner::isMultiSelect,
                            &ListManner::isDragEnabled, &ListManner::acceptsDrops,
                            &ListManner::frameStyle, &ListManner::lineWidth, &ListManner::focus,
                            &ListManner::horizontalBar, &ListManner::verticalBar);

} // namespace

ListManner ListManner::of(const ReportList &list)
{
    return {list.editsLabels(),
            list.isHeaderVisible(),
            list.hasCheckBoxes(),
            list.MultiSelect(),
            list.dragEnabled(),
            list.acceptDrops(),
            list.frameStyle(),
            list.lineWidth(),
            list.focusPolicy(),
            list.horizontalScrollBarPolicy(),
            list.verticalScrollBarPolicy()};
}

void ListManner::applyTo(ReportList &list) const
{
    list.setEditsLabels(editsLabels);
    list.setHeaderVisible(isHeaderVisible);
    list.setCheckBoxes(hasCheckBoxes);
    list.setMultiSelect(isMultiSelect);
    list.setDragEnabled(isDragEnabled);
    list.setAcceptDrops(acceptsDrops);
    list.setFrameStyle(frameStyle);
    list.setLineWidth(lineWidth);
    list.setFocusPolicy(focus);
    list.setHorizontalScrollBarPolicy(horizontalBar);
    list.setVerticalScrollBarPolicy(verticalBar);
}

void ListManner::change(const ListManner &from, const ListManner &to)
{
    const auto take = [&](auto field) {
        if (from.*field != to.*field)
            this->*field = to.*field;
    };
    std::apply([&](auto... field) { (take(field), ...); }, fields);
}

} // namespace ORVTListview
