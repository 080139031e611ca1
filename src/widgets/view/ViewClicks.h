#pragma once

#include "widgets/view/SlowClick.h"

#include <QtCore/QPersistentModelIndex>

class QAbstractItemView;
class QFocusEvent;
class QMouseEvent;

namespace ORVTListview {

// Tells what the presses and releases in a view amount to: a click, or a slow second
// one on a label.
class ViewClicks
{
public:
    explicit ViewClicks(const QAbstractItemView &view);
    Q_DISABLE_COPY_MOVE(ViewClicks) // follows one view

    SlowClick &slow() { return m_slow; }

    void focusIn(const QFocusEvent &event);

    // Whether the press at hand has brought the focus; true but once.
    bool takeFocusing();

    // isChosenLabel: of what was selected before.
    void press(const QMouseEvent &event, const QModelIndex &index, bool isChosenLabel);

    // Whether it is a click. One that checks a box edits no label.
    bool release(const QMouseEvent &event, bool hasChecked);
    void doubleClick();

    // Where a button went down.
    QModelIndex pressed() const { return m_pressed; }

private:
    const QAbstractItemView &m_view;
    SlowClick m_slow;
    QPersistentModelIndex m_pressed;
    bool m_isAwaited = false;  // the left button went down and has not come up
    bool m_isFocusing = false; // the mouse has brought the focus
};

} // namespace ORVTListview
