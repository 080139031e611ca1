#pragma once

#include <QtCore/QString>
#include <QtGui/QTextCursor>

namespace ORVTListview {

// What is dragged out of a box, and where it stands while the drag runs.
class DraggedText
{
public:
    DraggedText() = default;
    explicit DraggedText(const QTextCursor &selection);

    const QTextCursor &place() const { return m_place; }

    // Whether nobody has written into it since, so that a move may take it away. Letters may
    // have become large, and blanks others: so is a line finished that is left meanwhile.
    bool isAsItWas() const;

private:
    QTextCursor m_place;
    QString m_text;
};

} // namespace ORVTListview
