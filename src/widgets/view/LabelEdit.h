#pragma once

#include "base/EventGuard.h"
#include "widgets/view/OpenView.h"

#include <functional>

namespace ORVTListview {

// The events around a view's own editor of a label.
class LabelEdit
{
public:
    LabelEdit() = default;
    Q_DISABLE_COPY_MOVE(LabelEdit) // follows one view

    // Whether the editor may open; not in a disabled view, nor when a receiver has
    // destroyed it.
    template <typename View>
    bool announce(View &view, void (View::*before)(qint16 &))
    {
        if (m_isAnnouncing || OpenView::isEditing(view) || !view.isEnabled())
            return false;
        m_isAnnouncing = true;
        qint16 cancel = 0;
        if (!raiseEvent(view, before, cancel))
            return false;
        m_isAnnouncing = false;
        return cancel == 0 && view.isEnabled();
    }

    // The editor is being closed while this is called; event and label come later, if
    // what was edited is still there.
    template <typename View>
    static void enterSoon(View &view, void (View::*after)(qint16 &, QString &),
                          const QString &entered, const std::function<bool()> &isThere,
                          const std::function<void(const QString &)> &enter)
    {
        const auto finish = [&view, after, label = entered, isThere, enter]() mutable {
            qint16 cancel = 0;
            if (isThere() && raiseEvent(view, after, cancel, label) && cancel == 0 && isThere())
                enter(label);
        };
        QMetaObject::invokeMethod(&view, finish, Qt::QueuedConnection);
    }

    // No going on to edit the next one, which would not be announced.
    static QAbstractItemDelegate::EndEditHint withoutNext(QAbstractItemDelegate::EndEditHint hint)
    {
        const bool next = hint == QAbstractItemDelegate::EditNextItem ||
                          hint == QAbstractItemDelegate::EditPreviousItem;
        return next ? QAbstractItemDelegate::NoHint : hint;
    }

private:
    bool m_isAnnouncing = false;
};

} // namespace ORVTListview
