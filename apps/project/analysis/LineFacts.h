#pragma once

#include "project/analysis/ProgramFault.h"

#include "editor/rules/structure/BlockWords.h"

#include <memory>
#include <vector>

namespace ORVTListview {

// A name in a line, by its number among the names of the program.
struct NameUse
{
    qint32 name = 0;
    bool isWrite = false;
    TextPiece place;
};

// What is kept of a line.
struct LineFacts
{
    QList<LineProblem> problems;
    QList<NameUse> uses;
    QList<BlockWord> blocks;
    bool isRead = false;
};

// The facts of all lines, in pieces, so that a line more or less moves no more than one
// piece. Lines count from 0.
class AllLines
{
public:
    AllLines() = default;

    qint32 count() const { return m_count; }
    LineFacts &at(qint32 line);

    void remove(qint32 first, qint32 count);
    void insert(qint32 first, qint32 count); // not read

    // The first line from there on that is not read; -1 for none.
    qint32 firstUnread(qint32 from) const;
    void setRead(qint32 line, LineFacts facts);
    void setAllUnread();

private:
    struct Piece
    {
        std::vector<LineFacts> lines;
        qint32 unread = 0;
    };
    struct Place
    {
        std::size_t piece = 0;
        qint32 offset = 0;
    };
    using Pieces = std::vector<std::unique_ptr<Piece>>;

    Place placeOf(qint32 line) const;
    static void countUnread(Piece &piece);
    void divide(std::size_t piece);
    void forgetNear() { m_near = {}; }

    // A piece that was asked for, and its first line: the next one is often there.
    struct Near
    {
        std::size_t piece = 0;
        qint32 first = 0;
    };

    Pieces m_pieces;
    mutable Near m_near;
    qint32 m_count = 0;
};

} // namespace ORVTListview
