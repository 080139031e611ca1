#include "editor/view/Bookmarks.h"

#include "editor/view/LineMoves.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {

namespace {

QTextCursor wholeLine(const QTextBlock &line)
{
    QTextCursor whole(line);
    const int end =
        std::min(line.position() + line.length(), whole.document()->characterCount() - 1);
    whole.setPosition(end, QTextCursor::KeepAnchor);
    return whole;
}

} // namespace

Bookmarks::Mark::Mark(const QTextBlock &line)
    : place(wholeLine(line))
    , isSeen(place.hasSelection())
{
}

QTextBlock Bookmarks::Mark::line() const
{
    return place.document()->findBlock(place.selectionStart());
}

Bookmarks::Bookmarks(RichTextBox &box)
    : m_box(box)
{
}

// Edits do not change which of two marks comes first.
Bookmarks::Place Bookmarks::firstOn(const QTextBlock &line) const
{
    const auto place =
        std::partition_point(m_marks.cbegin(), m_marks.cend(), [&](const Mark &mark) {
            return mark.place.selectionStart() < line.position();
        });
    const int end = line.position() + line.length();
    return place != m_marks.cend() && place->place.selectionStart() < end ? place : m_marks.cend();
}

void Bookmarks::sort()
{
    std::stable_sort(m_marks.begin(), m_marks.end(), [](const Mark &one, const Mark &other) {
        return one.place.selectionStart() < other.place.selectionStart();
    });
}

void Bookmarks::toggle()
{
    const QTextBlock line = m_box.textCursor().block();
    if (m_marks.removeIf([&](const Mark &mark) { return mark.line() == line; }) == 0) {
        if (m_marks.isEmpty())
            connect(m_box.document(), &QTextDocument::contentsChange, this, &Bookmarks::noteChange);
        m_marks.append(Mark(line));
        sort();
    }
    if (m_marks.isEmpty())
        m_box.document()->disconnect(this);
    Q_EMIT changed();
}

// Those that the change has touched stand for whole lines again.
void Bookmarks::fit(int from, int to)
{
    auto mark = std::partition_point(m_marks.begin(), m_marks.end(), [=](const Mark &above) {
        return above.place.selectionEnd() < from;
    });
    for (; mark != m_marks.end() && mark->place.selectionStart() <= to; ++mark)
        *mark = Mark(mark->line());
}

// With the whole text its marks go; what shows them follows when the text is whole.
void Bookmarks::noteChange(int from, int removed, int added)
{
    if (m_box.keepsText() || !m_held.isEmpty())
        return;
    const qsizetype count = m_marks.size();
    if (removed > 0 && m_box.document()->characterCount() <= 1)
        m_marks.clear();
    else if (removed > 0)
        m_marks.removeIf([](const Mark &mark) { return mark.isGone(); });
    fit(from, from + added);
    if (m_marks.isEmpty())
        m_box.document()->disconnect(this);
    if (m_marks.size() != count)
        QMetaObject::invokeMethod(this, &Bookmarks::changed, Qt::QueuedConnection);
}

void Bookmarks::holdLines(const MovedLines &lines)
{
    m_held.clear();
    if (lines.from.isEmpty())
        return;
    for (const Mark &mark : std::as_const(m_marks))
        m_held.append(mark.line().blockNumber());
}

void Bookmarks::putBack(const MovedLines &lines)
{
    const QList<int> held = std::exchange(m_held, {});
    if (held.size() != m_marks.size())
        return;
    const QList<int> places = lines.places();
    for (qsizetype i = 0; i < m_marks.size(); ++i) {
        const int line = lines.contains(held[i]) ? places[held[i] - lines.first]
                                                 : m_marks[i].line().blockNumber();
        m_marks[i] = Mark(m_box.document()->findBlockByNumber(line));
    }
    sort();
}

void Bookmarks::tellMoved(const MovedLines &lines)
{
    if (!lines.from.isEmpty() && !m_marks.isEmpty())
        Q_EMIT changed();
}

bool Bookmarks::goToNext()
{
    if (m_marks.isEmpty())
        return false;
    const QTextBlock line = m_box.textCursor().block();
    const int behind = line.position() + line.length();
    auto next = std::find_if(m_marks.cbegin(), m_marks.cend(), [=](const Mark &mark) {
        return mark.place.selectionStart() >= behind;
    });
    if (next == m_marks.cend())
        next = m_marks.cbegin();
    QTextCursor caret = m_box.textCursor();
    caret.setPosition(next->line().position());
    const KeptView view(m_box);
    m_box.setTextCursor(caret);
    return true;
}

QList<LineMark> Bookmarks::marks() const
{
    const QColor colour = colourOn(ViewColours::groundOf(m_box));
    QList<LineMark> marks;
    for (const Mark &mark : m_marks)
        marks.append({mark.place.selectionStart(), colour});
    return marks;
}

QColor Bookmarks::colourOn(const QColor &ground)
{
    return ViewColours::onGround(QColor(0x5c, 0x6b, 0xc0), ground, ViewColours::visible);
}

} // namespace ORVTListview
