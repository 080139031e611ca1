#include "widgets/box/TextUnits.h"

#include <QtCore/QTextBoundaryFinder>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

using Unit = TextUnits::Unit;

// In a line; what begins at a place, if the place is between two.
Unit within(const QTextBlock &line, int column, QTextBoundaryFinder::BoundaryType type)
{
    const QString text = line.text();
    QTextBoundaryFinder finder(type, text);
    finder.setPosition(column);
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    const auto start = static_cast<int>(std::max<qsizetype>(0, finder.position()));
    const qsizetype next = finder.toNextBoundary();
    const auto end = static_cast<int>(next < 0 ? text.size() : next);
    return {line.position() + start, line.position() + end};
}

Unit wordAt(const QTextBlock &line, int position)
{
    QTextCursor cursor(line);
    cursor.setPosition(position);
    cursor.movePosition(QTextCursor::StartOfWord);
    const int start = cursor.position();
    cursor.movePosition(QTextCursor::EndOfWord);
    return {start, cursor.position()};
}

} // namespace

int TextUnits::length() const
{
    return m_document.characterCount() - 1;
}

bool TextUnits::isLine() const
{
    return m_kind == QAccessible::LineBoundary || m_kind == QAccessible::ParagraphBoundary;
}

Unit TextUnits::at(int position) const
{
    const QTextBlock line = m_document.findBlock(position);
    if (!line.isValid() || m_kind == QAccessible::NoBoundary)
        return {0, length()};
    const int column = position - line.position();
    const int end = line.position() + line.length() - 1;
    if (isLine())
        return {line.position(), end};
    if (m_kind == QAccessible::WordBoundary)
        return wordAt(line, position);
    if (position < end) {
        const bool isSentence = m_kind == QAccessible::SentenceBoundary;
        return within(line, column,
                      isSentence ? QTextBoundaryFinder::Sentence : QTextBoundaryFinder::Grapheme);
    }
    return {position, std::min(position + 1, length())}; // the line end
}

Unit TextUnits::before(int position) const
{
    const int start = at(position).start;
    for (int place = start - 1; place >= 0; --place) {
        const Unit unit = at(place);
        if (unit.start < start && counts(unit))
            return unit;
    }
    return {};
}

Unit TextUnits::after(int position) const
{
    const Unit here = at(position);
    for (int place = here.end; place <= length(); ++place) {
        const Unit unit = at(place);
        if (unit.start > here.start && unit.start >= here.end && counts(unit))
            return unit;
    }
    return {length(), length()};
}

} // namespace ORVTListview
