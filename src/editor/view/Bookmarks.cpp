#include "editor/view/Bookmarks.h"

#include "editor/view/LineMoves.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace ORVTListview {

Bookmarks::Bookmarks(QPlainTextEdit &box)
    : m_box(box)
{
}

bool Bookmarks::isOn(const QTextBlock &line) const
{
    return std::any_of(m_marks.cbegin(), m_marks.cend(),
                       [&](const QTextCursor &mark) { return line.contains(mark.position()); });
}

// At the line's first letter: an Enter before it takes the mark along.
void Bookmarks::toggle()
{
    const QTextBlock line = m_box.textCursor().block();
    const auto isHere = [&](const QTextCursor &mark) { return line.contains(mark.position()); };
    if (m_marks.removeIf(isHere) == 0) {
        if (m_marks.isEmpty())
            connect(m_box.document(), &QTextDocument::contentsChange, this, &Bookmarks::noteChange);
        m_marks.append(QTextCursor(line));
    }
    if (m_marks.isEmpty())
        m_box.document()->disconnect(this);
    Q_EMIT changed();
}

// With the whole text its marks go; what shows them follows when the text is whole.
void Bookmarks::noteChange(int, int removed, int)
{
    if (removed == 0 || m_box.document()->characterCount() > 1)
        return;
    m_marks.clear();
    m_box.document()->disconnect(this);
    QMetaObject::invokeMethod(this, &Bookmarks::changed, Qt::QueuedConnection);
}

void Bookmarks::holdLines(const MovedLines &lines)
{
    m_held.clear();
    if (lines.from.isEmpty())
        return;
    for (const QTextCursor &mark : std::as_const(m_marks))
        m_held.append(mark.blockNumber());
}

void Bookmarks::putBack(const MovedLines &lines)
{
    if (m_held.size() != m_marks.size())
        return;
    for (qsizetype i = 0; i < m_marks.size(); ++i) {
        if (lines.contains(m_held[i]))
            m_marks[i] = QTextCursor(m_box.document()->findBlockByNumber(lines.placeOf(m_held[i])));
    }
    m_held.clear();
    Q_EMIT changed();
}

bool Bookmarks::goToNext()
{
    if (m_marks.isEmpty())
        return false;
    const QTextBlock line = m_box.textCursor().block();
    const int behind = line.position() + line.length();
    int first = -1;
    int next = -1;
    for (const QTextCursor &mark : std::as_const(m_marks)) {
        const int place = mark.block().position();
        if (first < 0 || place < first)
            first = place;
        if (place >= behind && (next < 0 || place < next))
            next = place;
    }
    QTextCursor caret = m_box.textCursor();
    caret.setPosition(next < 0 ? first : next);
    const KeptView view(m_box);
    m_box.setTextCursor(caret);
    return true;
}

QList<LineMark> Bookmarks::marks() const
{
    const QColor colour = colourOn(ViewColours::groundOf(m_box));
    QList<LineMark> marks;
    for (const QTextCursor &mark : m_marks)
        marks.append({mark.position(), colour});
    return marks;
}

QColor Bookmarks::colourOn(const QColor &ground)
{
    return ViewColours::onGround(QColor(0x5c, 0x6b, 0xc0), ground, ViewColours::visible);
}

} // namespace ORVTListview
