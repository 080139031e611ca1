#include "editor/view/KeptLines.h"

#include "editor/view/LineMoves.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <utility>

namespace ORVTListview {
namespace {

// That of the whole line.
KeptPlaces::Span placeOf(const QTextBlock &line)
{
    return {line.position(), line.position()};
}

} // namespace

KeptLines::KeptLines(RichTextBox &box)
    : m_box(box)
    , m_places(*box.document(), KeptPlaces::Kind::Lines)
{
}

void KeptLines::setLines(const QList<Numbered> &lines)
{
    const bool wereThere = !isEmpty();
    QList<KeptPlaces::Span> places;
    m_numbers.clear();
    for (const Numbered &each : lines) {
        places.append(placeOf(each.line));
        m_numbers.append(each.number);
    }
    m_places.set(places);
    if (wereThere && isEmpty())
        m_box.document()->disconnect(this);
    else if (!wereThere && !isEmpty())
        connect(m_box.document(), &QTextDocument::contentsChange, this, &KeptLines::noteChange);
}

QList<KeptLines::Numbered> KeptLines::lines() const
{
    QList<Numbered> lines;
    for (qsizetype i = 0; i < m_places.size(); ++i)
        lines.append({m_places.lineAt(i), numberAt(i)});
    return lines;
}

qsizetype KeptLines::firstOn(const QTextBlock &line) const
{
    return m_places.firstFrom(line.position());
}

qsizetype KeptLines::endOn(const QTextBlock &line) const
{
    return m_places.firstFrom(line.position() + line.length());
}

// With the whole text its marks go; what shows them follows when the text is whole.
void KeptLines::noteChange(int from, int removed, int added)
{
    if (m_box.keepsText())
        return m_places.noteLetters(from, added);
    m_places.noteChange(from, removed, added);
    if (removed == 0 || !m_held.isEmpty())
        return;
    const bool isEmptied = m_box.document()->characterCount() <= 1;
    if (!isEmptied && !m_places.areGone(from, from + added))
        return;
    QList<Numbered> left;
    for (qsizetype i = 0; i < m_places.size() && !isEmptied; ++i) {
        if (!m_places.isGone(i))
            left.append({m_places.lineAt(i), numberAt(i)});
    }
    if (left.size() == m_places.size())
        return;
    setLines(left);
    QMetaObject::invokeMethod(this, &KeptLines::changed, Qt::QueuedConnection);
}

void KeptLines::holdLines(const MovedLines &lines)
{
    m_held.clear();
    if (lines.from.isEmpty())
        return;
    m_held.resize(m_places.size());
    for (qsizetype i = 0; i < m_places.size(); ++i)
        m_held[m_places.nameAt(i)] = m_places.lineAt(i).blockNumber();
}

void KeptLines::putBack(const MovedLines &lines)
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

void KeptLines::tellMoved(const MovedLines &lines)
{
    if (!lines.from.isEmpty() && !isEmpty())
        Q_EMIT changed();
}

} // namespace ORVTListview
