#include "project/analysis/LineFacts.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ORVTListview {
namespace {

constexpr std::size_t largestPiece = 1024;

std::size_t sizeOf(qint32 count)
{
    return static_cast<std::size_t>(count);
}

qint32 sizeOf32(const std::vector<LineFacts> &lines)
{
    return static_cast<qint32>(lines.size());
}

} // namespace

LineFacts &AllLines::at(qint32 line)
{
    const Place place = placeOf(line);
    return m_pieces[place.piece]->lines[sizeOf(place.offset)];
}

// Behind the last line: the end of the last piece.
AllLines::Place AllLines::placeOf(qint32 line) const
{
    if (line < m_near.first)
        m_near = {};
    for (; m_near.piece + 1 < m_pieces.size(); ++m_near.piece) {
        const auto size = static_cast<qint32>(m_pieces[m_near.piece]->lines.size());
        if (line < m_near.first + size)
            break;
        m_near.first += size;
    }
    return {m_near.piece, line - m_near.first};
}

void AllLines::countUnread(Piece &piece)
{
    piece.unread =
        static_cast<qint32>(std::count_if(piece.lines.cbegin(), piece.lines.cend(),
                                          [](const LineFacts &each) { return !each.isRead; }));
}

void AllLines::remove(qint32 first, qint32 count)
{
    m_count -= count;
    Place place = placeOf(first);
    while (count > 0) {
        Piece &piece = *m_pieces[place.piece];
        const auto begin = piece.lines.begin() + place.offset;
        const auto taken = std::min<qint32>(count, static_cast<qint32>(piece.lines.end() - begin));
        piece.lines.erase(begin, begin + taken);
        countUnread(piece);
        count -= taken;
        place = {place.piece + 1, 0};
    }
    forgetNear();
    std::erase_if(m_pieces, [](const auto &piece) { return piece->lines.empty(); });
}

void AllLines::insert(qint32 first, qint32 count)
{
    if (m_pieces.empty())
        m_pieces.push_back(std::make_unique<Piece>());
    const Place place = placeOf(first);
    Piece &piece = *m_pieces[place.piece];
    std::vector<LineFacts> fresh(sizeOf(count));
    piece.lines.insert(piece.lines.begin() + place.offset, std::make_move_iterator(fresh.begin()),
                       std::make_move_iterator(fresh.end()));
    piece.unread += count;
    m_count += count;
    forgetNear();
    if (piece.lines.size() > largestPiece)
        divide(place.piece);
}

void AllLines::divide(std::size_t piece)
{
    std::vector<LineFacts> all = std::move(m_pieces[piece]->lines);
    Pieces halves;
    for (std::size_t from = 0; from < all.size(); from += largestPiece / 2) {
        const std::size_t to = std::min(all.size(), from + largestPiece / 2);
        auto half = std::make_unique<Piece>();
        const auto begin = all.begin();
        half->lines.assign(std::make_move_iterator(begin + static_cast<qptrdiff>(from)),
                           std::make_move_iterator(begin + static_cast<qptrdiff>(to)));
        countUnread(*half);
        halves.push_back(std::move(half));
    }
    const auto at = m_pieces.erase(m_pieces.begin() + static_cast<qptrdiff>(piece));
    m_pieces.insert(at, std::make_move_iterator(halves.begin()),
                    std::make_move_iterator(halves.end()));
}

qint32 AllLines::firstUnread(qint32 from) const
{
    Place place = placeOf(from);
    for (qint32 line = from - place.offset; place.piece < m_pieces.size(); ++place.piece) {
        const std::vector<LineFacts> &lines = m_pieces[place.piece]->lines;
        const auto found =
            m_pieces[place.piece]->unread == 0
                ? lines.cend()
                : std::find_if(lines.cbegin() + std::min(place.offset, sizeOf32(lines)),
                               lines.cend(), [](const LineFacts &each) { return !each.isRead; });
        if (found != lines.cend())
            return line + static_cast<qint32>(found - lines.cbegin());
        line += sizeOf32(lines);
        place.offset = 0;
    }
    return -1;
}

void AllLines::setRead(qint32 line, LineFacts facts)
{
    const Place place = placeOf(line);
    Piece &piece = *m_pieces[place.piece];
    LineFacts &kept = piece.lines[sizeOf(place.offset)];
    piece.unread -= kept.isRead ? 0 : 1;
    kept = std::move(facts);
    kept.isRead = true;
}

void AllLines::setAllUnread()
{
    for (const auto &piece : m_pieces) {
        for (LineFacts &line : piece->lines)
            line = {};
        countUnread(*piece);
    }
}

} // namespace ORVTListview
