#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <unordered_set>

namespace ORVTListview {

// A text that never changes, held in pieces of strings that other texts may hold
// too. Made for many states of one long text: what two of them have in common is
// in memory once. Positions are UTF-16 units from 0; a piece may end inside a
// surrogate pair.
class ORVT_HOUSE_EXPORT SharedText
{
public:
    SharedText() = default;
    explicit SharedText(const QString &text); // shares its memory

    qsizetype size() const { return m_size; }

    // Shares its memory with the string that the text was made of, if it still is
    // one piece.
    QString toString() const;

    // What lies behind or before a position in one piece, not more than so much.
    // Empty only at the end, or at the start.
    QStringView behind(qsizetype position, qsizetype longest) const;
    QStringView before(qsizetype position, qsizetype longest) const;

    class Walk;

    // A part of it, which lies within.
    QString mid(qsizetype start, qsizetype length) const { return part(start, length).toString(); }

    bool equals(const SharedText &other) const;

    // How many characters the two have in common at their starts, or at their ends and not
    // more than so many. Pieces that both hold take no time.
    qsizetype alikeAtStart(const SharedText &other) const;
    qsizetype alikeAtEnd(const SharedText &other, qsizetype most) const;

    // A part of the text, and what another one has in its place.
    struct Difference
    {
        qsizetype start = 0;
        qsizetype length = 0;
        qsizetype otherStart = 0;
        qsizetype otherLength = 0;

        qsizetype end() const { return start + length; }
        qsizetype grown() const { return otherLength - length; }
    };

    // Where the two differ, from front to back. Between two differences lies what both hold
    // a piece of: one text that shares none with the other has one at most. Takes time in
    // the number of pieces, and in the length of what lies between those that both hold.
    QList<Difference> differences(const SharedText &other) const;

    // The same text, holding the other's pieces where both begin and end alike.
    // As it is, when less than half would be shared or the pieces would be more
    // than mostPieces. Takes time in the length of what is alike.
    SharedText sharedWith(const SharedText &other) const;

    static constexpr qsizetype mostPieces = 64;
    qsizetype pieceCount() const { return m_pieces.size(); }

    // The text with a part of it replaced. Holds the same pieces around it, but short
    // ones become one: changes one after another leave no more than two pieces for
    // each joinedLength of the text. Takes time in the number of pieces and the length
    // of the new text, not in that of the whole.
    SharedText replaced(qsizetype start, qsizetype length, const QString &text) const;

    static constexpr qsizetype joinedLength = 4096;

    // The toolkit's set ends the program for want of memory.
    using CountedStrings = std::unordered_set<const QChar *>;

    // The bytes of the strings it holds, without those in counted; adds them to it.
    // The strings of `before`, another state of the text, are in there already.
    qsizetype bytes(CountedStrings &counted) const;
    qsizetype bytes(CountedStrings &counted, const SharedText &before) const;

private:
    struct Piece
    {
        QString string;
        qsizetype start = 0;
        qsizetype length = 0;

        QStringView view() const { return QStringView(string).sliced(start, length); }
    };

    struct Alike
    {
        qsizetype start = 0;
        qsizetype otherStart = 0;
        qsizetype length = 0;
    };

    QList<Alike> sharedParts(const SharedText &other) const;
    void append(const Piece &piece);
    void append(const SharedText &text);
    SharedText part(qsizetype start, qsizetype length) const;
    QString takeShortEnd(qsizetype longest);
    QString takeShortStart(qsizetype longest);

    QList<Piece> m_pieces; // none empty
    qsizetype m_size = 0;
};

// Goes through a text, forwards or backwards, in a time that goes by the way from the place
// looked at last. The text lives longer, and stays as it is.
class ORVT_HOUSE_EXPORT SharedText::Walk
{
public:
    explicit Walk(const SharedText &text)
        : m_text(text)
    {
    }

    const SharedText &text() const { return m_text; }

    // As those of the text.
    QStringView behind(qsizetype position, qsizetype longest);
    QStringView before(qsizetype position, qsizetype longest);

private:
    const Piece &piece() const { return m_text.m_pieces[m_index]; }
    qsizetype end() const { return m_begin + piece().length; }
    void goTo(qsizetype position);

    const SharedText &m_text;
    qsizetype m_index = 0; // of a piece
    qsizetype m_begin = 0; // of it in the text
};

} // namespace ORVTListview
