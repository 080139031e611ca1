#pragma once

#include "base/EventGuard.h"
#include "widgets/view/OpenView.h"

#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QQueue>

#include <functional>

namespace ORVTListview {

class ReportDelegate;

// The events around a view's own editor of a label. What was entered is told soon
// after the editor has closed, and before anything else that the user does: a press
// or the wheel beside the editor closes it and is told of the label first, while the
// row is still the selected one.
class LabelEdit final : public QObject
{
public:
    LabelEdit(QAbstractItemView &view, ReportDelegate &delegate);

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

    void open(const QModelIndex &label);

    // The editor is being closed while this is called; event and label come later, if
    // what was edited is still there.
    template <typename View>
    void enterSoon(View &view, void (View::*after)(qint16 &, QString &), const QString &entered,
                   const std::function<bool()> &isThere,
                   const std::function<void(const QString &)> &enter)
    {
        tellSoon([this, &view, after, label = entered, column = m_label.column(), isThere,
                  enter]() mutable {
            qint16 cancel = 0;
            if (!isThere() || !raiseEvent(view, after, cancel, label) || cancel != 0 || !isThere())
                return;
            m_enteredColumn = column;
            enter(label);
        });
    }

    // That of the label that is being entered; the view may name another one meanwhile.
    int enteredColumn() const { return m_enteredColumn; }

    // The editor is being closed while this is called: tells as events are told.
    void tellSoon(const std::function<void()> &tell);

    // Whether the press at hand has closed an editor.
    bool wasClosedByPress() const { return m_wasClosedByPress; }

    // No going on to edit the next one, which would not be announced.
    static QAbstractItemDelegate::EndEditHint withoutNext(QAbstractItemDelegate::EndEditHint hint)
    {
        const bool next = hint == QAbstractItemDelegate::EditNextItem ||
                          hint == QAbstractItemDelegate::EditPreviousItem;
        return next ? QAbstractItemDelegate::NoHint : hint;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *editor() const;
    void closeFor(const QObject &receiver, const QEvent &event);
    void tellNow();
    void watchTheUser();

    QAbstractItemView &m_view;
    ReportDelegate &m_delegate;
    QPersistentModelIndex m_label;
    QQueue<std::function<void()>> m_untold;
    int m_enteredColumn = 0;
    bool m_isAnnouncing = false;
    bool m_wasClosedByPress = false;
};

} // namespace ORVTListview
