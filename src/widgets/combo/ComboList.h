#pragma once

#include "widgets/combo/ComboMatches.h"
#include "widgets/input/EventSurface.h"

#include <QtWidgets/QFrame>

#include <functional>

class QComboBox;
class QListView;
class QMouseEvent;

namespace ORVTListview {

// The list that drops down from an ImageCombo. The combo keeps the focus: keys
// that come here go to it. Closes when the user presses elsewhere.
class ComboList : public QFrame
{
    Q_OBJECT

public:
    // A press where pressesArrow says so, in global pixels, only closes the list.
    ComboList(QComboBox &combo, const ComboEntries &entries,
              std::function<bool(QPoint)> pressesArrow);
    ~ComboList() override;

    // Shows the entries that hold the text, all for an empty one, and marks that of
    // the given row, or the best one for row -1. Closes when there are none.
    void open(const QString &filter, int row = -1);

    // Takes the list out of a combo that is being destroyed.
    void letGo();

    // The entry that is marked.
    int currentRow() const;

    // By as many matches, as far as there are any.
    void moveBy(int steps);
    int pageSize() const;

    QListView &view() const { return *m_view; }

Q_SIGNALS:
    void chosen(int row);
    void toggled();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void setUpView();
    void followLook();
    void place();
    int contentWidth() const;
    void setCurrent(int position);
    void announceCurrent();
    bool followMouse(const QMouseEvent &event);

    QComboBox &m_combo;
    const ComboEntries &m_entries;
    std::function<bool(QPoint)> m_pressesArrow;
    ComboMatches m_matches;
    QListView *m_view;
    EventSurface m_surface;
    bool m_isPressed = false; // in the list, or dragged into it
};

} // namespace ORVTListview
