#pragma once

class QWidget;

namespace ORVTListview {

class Workplace;

// Where Tab goes to in a window, or Shift+Tab; null for nowhere. That is the toolkit's rule, but
// for views behind tabs, which it takes for visible: who pressed Tab typed into one unseen.
QWidget *nextByTab(QWidget &window, const Workplace &workplace, bool isForward);

} // namespace ORVTListview
