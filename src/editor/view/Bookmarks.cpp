#include "editor/view/Bookmarks.h"

#include "editor/view/LineMoves.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {

namespace {

// That of the whole line.
KeptPlaces::Span placeOf(const QTextBlock &line)
{
    return {line.position(), line.position()};
}

} // namespace

Bookmarks::Bookmarks(RichTextBox &box)
    : m_box(box)
    , m_places(*box.document(), KeptPlaces::Kind::Lines)
{
}

bool Bookmarks::isOn(const QTextBlock &line) const
{
    const qsizetype first = m_places.firstFrom(line.position());
    return first < m_places.size() && m_places.at(first).from < line.position() + line.length();
}

// Returns whether there were any.
template <typename IsToGo>
bool Bookmarks::remove(const IsToGo &isToGo)
{
    QList<KeptPlaces::Span> left;
    for (qsizetype i = 0; i < m_places.size(); ++i) {
        if (!isToGo(i))
            left.append(m_places.at(i));
    }
    const bool wereThere = left.size() < m_places.size();
    if (wereThere)
        m_places.set(left);
    if (m_places.isEmpty())
        m_box.document()->disconnect(this);
    return wereThere;
}

void Bookmarks::toggle()
{
    const QTextBlock line = m_box.textCursor().block();
    if (!remove([&](qsizetype i) { return m_places.lineAt(i) == line; })) {
        if (m_places.isEmpty())
            connect(m_box.document(), &QTextDocument::contentsChange, this, &Bookmarks::noteChange);
        m_places.set(m_places.byName() << placeOf(line));
    }
    Q_EMIT changed();
}

// With the whole text its marks go; what shows them follows when the text is whole.
void Bookmarks::noteChange(int from, int removed, int added)
{
    if (m_box.keepsText())
        return m_places.noteLetters(from, added);
    m_places.noteChange(from, removed, added);
    if (removed == 0 || !m_held.isEmpty())
        return;
    const bool isEmpty = m_box.document()->characterCount() <= 1;
    if (!isEmpty && !m_places.areGone(from, from + added))
        return;
    if (remove([&](qsizetype i) { return isEmpty || m_places.isGone(i); }))
        QMetaObject::invokeMethod(this, &Bookmarks::changed, Qt::QueuedConnection);
}

void Bookmarks::holdLines(const MovedLines &lines)
{
    m_held.clear();
    if (lines.from.isEmpty())
        return;
    m_held.resize(m_places.size());
    for (qsizetype i = 0; i < m_places.size(); ++i)
        m_held[m_places.nameAt(i)] = m_places.lineAt(i).blockNumber();
}

void Bookmarks::putBack(const MovedLines &lines)
{
    const QList<int> held = std::exchange(m_held, {});
    if (held.size() != m_places.size())
        return;
    const QList<int> newLines = lines.places();
    QList<KeptPlaces::Span> places = m_places.byName();
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (lines.contains(held[i]))
            places[i] =
                placeOf(m_box.document()->findBlockByNumber(newLines[held[i] - lines.first]));
    }
    m_places.put(places);
}

void Bookmarks::tellMoved(const MovedLines &lines)
{
    if (!lines.from.isEmpty() && !m_places.isEmpty())
        Q_EMIT changed();
}

bool Bookmarks::goToNext()
{
    if (m_places.isEmpty())
        return false;
    QTextCursor caret = m_box.textCursor();
    const QTextBlock line = caret.block();
    const qsizetype next = m_places.firstFrom(line.position() + line.length());
    caret.setPosition(m_places.lineAt(next % m_places.size()).position());
    const KeptView view(m_box);
    m_box.setTextCursor(caret);
    return true;
}

QList<LineMark> Bookmarks::marks() const
{
    const QColor colour = colourOn(ViewColours::groundOf(m_box));
    QList<LineMark> marks;
    for (qsizetype i = 0; i < m_places.size(); ++i)
        marks.append({m_places.at(i).from, colour});
    return marks;
}

QColor Bookmarks::colourOn(const QColor &ground)
{
    return ViewColours::onGround(QColor(0x5c, 0x6b, 0xc0), ground, ViewColours::visible);
}

} // namespace ORVTListview
