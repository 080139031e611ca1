#include "base/SharedText.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace ORVTListview {

SharedText::SharedText(const QString &text)
{
    append({text, 0, text.size()});
}

void SharedText::append(const Piece &piece)
{
    if (piece.length == 0)
        return;
    m_size += piece.length;
    if (!m_pieces.isEmpty()) {
        Piece &last = m_pieces.last();
        if (last.view().end() == piece.view().begin() &&
            last.string.constData() == piece.string.constData()) {
            last.length += piece.length;
            return;
        }
    }
    m_pieces.append(piece);
}

void SharedText::append(const SharedText &text)
{
    for (const Piece &piece : text.m_pieces)
        append(piece);
}

QString SharedText::toString() const
{
    if (m_pieces.size() == 1 && m_pieces.first().string.size() == m_size)
        return m_pieces.first().string;
    QString text;
    text.reserve(m_size);
    for (const Piece &piece : m_pieces)
        text += piece.view();
    return text;
}

QStringView SharedText::behind(qsizetype position, qsizetype longest) const
{
    return Walk(*this).behind(position, longest);
}

QStringView SharedText::before(qsizetype position, qsizetype longest) const
{
    return Walk(*this).before(position, longest);
}

SharedText SharedText::part(qsizetype start, qsizetype length) const
{
    SharedText result;
    result.m_pieces.reserve(m_pieces.size());
    for (const Piece &piece : m_pieces) {
        const qsizetype first = std::clamp<qsizetype>(start, 0, piece.length);
        const qsizetype last = std::clamp<qsizetype>(start + length, 0, piece.length);
        result.append({piece.string, piece.start + first, last - first});
        start -= piece.length;
    }
    return result;
}

bool SharedText::equals(const SharedText &other) const
{
    return m_size == other.m_size && alikeAtStart(other) == m_size;
}

SharedText SharedText::sharedWith(const SharedText &other) const
{
    const qsizetype atStart = alikeAtStart(other);
    const qsizetype atEnd = alikeAtEnd(other, std::min(m_size, other.m_size) - atStart);
    const qsizetype alike = atStart + atEnd;
    if (alike < m_size - alike)
        return *this;
    SharedText result = other.part(0, atStart);
    result.append(SharedText(part(atStart, m_size - alike).toString()));
    result.append(other.part(other.m_size - atEnd, atEnd));
    return result.m_pieces.size() > mostPieces ? *this : result;
}

// The last pieces that together are not longer.
QString SharedText::takeShortEnd(qsizetype longest)
{
    QString taken;
    while (!m_pieces.isEmpty() && m_pieces.last().length + taken.size() <= longest) {
        const Piece piece = m_pieces.takeLast();
        taken.prepend(piece.view());
        m_size -= piece.length;
    }
    return taken;
}

QString SharedText::takeShortStart(qsizetype longest)
{
    QString taken;
    while (!m_pieces.isEmpty() && m_pieces.first().length + taken.size() <= longest) {
        const Piece piece = m_pieces.takeFirst();
        taken += piece.view();
        m_size -= piece.length;
    }
    return taken;
}

SharedText SharedText::replaced(qsizetype start, qsizetype length, const QString &text) const
{
    SharedText result = part(0, start);
    SharedText rest = part(start + length, m_size - start - length);
    QString joined = result.takeShortEnd(joinedLength - text.size()) + text;
    joined += rest.takeShortStart(joinedLength - joined.size());
    result.append({joined, 0, joined.size()});
    result.append(rest);
    return result;
}

qsizetype SharedText::bytes(CountedStrings &counted) const
{
    return bytes(counted, {});
}

qsizetype SharedText::bytes(CountedStrings &counted, const SharedText &before) const
{
    const auto isSame = [](const Piece &one, const Piece &other) {
        return one.string.constData() == other.string.constData();
    };
    const auto &theirs = before.m_pieces;
    const auto first =
        std::mismatch(m_pieces.begin(), m_pieces.end(), theirs.begin(), theirs.end(), isSame).first;
    const auto last = std::mismatch(m_pieces.rbegin(), std::make_reverse_iterator(first),
                                    theirs.rbegin(), theirs.rend(), isSame)
                          .first.base();
    qsizetype sum = 0;
    for (const Piece &piece : std::span(first, last)) {
        if (counted.insert(piece.string.constData()).second)
            sum += piece.string.size() * qsizetype(sizeof(QChar));
    }
    return sum;
}

// To the piece that holds it; a place between two is in the one behind.
void SharedText::Walk::goTo(qsizetype position)
{
    while (m_index > 0 && position < m_begin)
        m_begin -= m_text.m_pieces[--m_index].length;
    while (position >= end() && m_index + 1 < m_text.m_pieces.size()) {
        m_begin = end();
        ++m_index;
    }
}

QStringView SharedText::Walk::behind(qsizetype position, qsizetype longest)
{
    if (position < 0 || position >= m_text.size())
        return {};
    goTo(position);
    return piece().view().sliced(position - m_begin).left(longest);
}

QStringView SharedText::Walk::before(qsizetype position, qsizetype longest)
{
    if (position <= 0 || position > m_text.size())
        return {};
    goTo(position - 1);
    return piece().view().first(position - m_begin).right(longest);
}

} // namespace ORVTListview
