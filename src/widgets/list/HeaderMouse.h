#pragma once

#include "widgets/list/SectionDrag.h"
#include "widgets/list/SeenSections.h"

#include <functional>

class QMouseEvent;

namespace ORVTListview {

// Brings the mouse of a header to the sections that are seen under it. Over those that stay in
// sight the toolkit is told of it where it has them; while a button is held, where that was
// pressed. Their dividers, and sections dragged meanwhile, are no matter for the toolkit.
class HeaderMouse
{
public:
    using ToToolkit = std::function<bool(QEvent &)>;

    HeaderMouse(QHeaderView &header, const SeenSections &seen, const SectionDrag::Picture &picture);
    Q_DISABLE_COPY_MOVE(HeaderMouse) // of one header

    // Whether the user moves the divider of a section that stays.
    bool isResizing() const { return m_resized >= 0; }

    bool deliver(QMouseEvent &event, const ToToolkit &toToolkit);

private:
    bool drag(QMouseEvent &event, const ToToolkit &toToolkit);
    bool isOnDivider(int x) const;
    int keptDividerAt(int x) const;
    bool actOnDivider(const QMouseEvent &event);
    void showPointer(int x);
    void refreshKept() const;

    QHeaderView &m_header;
    const SeenSections &m_seen;
    SectionDrag m_drag;
    int m_pressedShift = 0;
    int m_resized = -1; // a column that stays in sight, while the user resizes it
    int m_beside = 0;   // how much wider it is than the place of the mouse says
};

} // namespace ORVTListview
