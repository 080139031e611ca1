#pragma once

namespace ORVTListview {

class ViewDock;
class Workplace;

// The tabs that the toolkit makes for docks that share a place.
namespace ViewTabs {

// Gives them the names for screen readers, and those of docks that can be closed a button.
void dress(Workplace &workplace);

// So many tabs behind this one or before it, round at the ends; null for a dock without tabs.
ViewDock *beside(const Workplace &workplace, const ViewDock *dock, int step);

} // namespace ViewTabs
} // namespace ORVTListview
