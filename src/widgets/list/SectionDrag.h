#pragma once

#include "widgets/list/SeenSections.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QPixmap>

#include <functional>

class QLabel;

namespace ORVTListview {

// Drags a section of a header while some stay in sight, by what is seen: the toolkit drops it
// where the sections would be without, and does not see the mouse over those that stay.
class SectionDrag final : public QObject
{
public:
    // What follows the mouse.
    using Picture = std::function<QPixmap(int column)>;

    SectionDrag(QHeaderView &header, const SeenSections &seen, const Picture &picture);

    // The left button has gone down on a section, not on a divider.
    void press(int x);

    // The mouse has moved with it. False when there is nothing to drag.
    bool follow(int x);

    // It has come up; the section is in its new place then. False when it was not dragged.
    bool drop();
    void cancel();

private:
    void begin();
    void scroll();
    int scrollStep() const;
    int target() const;

    // From the edge where one begins to read, and the other way.
    int inReadingOrder(int x) const;

    QHeaderView &m_header;
    const SeenSections &m_seen;
    const Picture m_makePicture;
    QTimer m_scrolling;
    QPointer<QLabel> m_picture; // while it is dragged
    int m_column = -1;
    int m_pressedAt = 0;
    int m_at = 0;
    int m_grip = 0; // where in the section it was pressed
};

} // namespace ORVTListview
