#include "widgets/box/BoxColours.h"

#include "widgets/box/BoxFormats.h"
#include "widgets/box/BoxMarks.h"
#include "widgets/box/BoxText.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

// The part of a fragment inside a range of the document, as a position and a length.
struct Piece
{
    int position = 0;
    int length = 0;
    Colour colour = ColouredText::automatic;
};

// Calls for each fragment of a line with its part inside a range. A fragment would look
// for its position in the document.
template <typename Take>
void forEachPiece(const QTextBlock &block, int from, int to, const Take &take)
{
    int start = block.position();
    for (auto it = block.begin(); !it.atEnd() && start < to; ++it) {
        const QTextFragment fragment = it.fragment();
        const int end = start + fragment.length();
        const int first = std::max(start, from);
        const int last = std::min(end, to);
        if (first < last)
            take(Piece{first, last - first, BoxFormats::colour(fragment.charFormat())});
        start = end;
    }
}

// Tells the colour of each place of a coloured text, asked from front to back.
class RunReader
{
public:
    explicit RunReader(const QList<ColouredText::Run> &runs)
        : m_runs(runs)
    {
    }

    // The colour at `index`, and in `length` how far it holds, at most `length`.
    Colour at(qsizetype index, qsizetype &length)
    {
        while (m_run < m_runs.size() && m_start + m_runs[m_run].length <= index)
            m_start += m_runs[m_run++].length;
        if (m_run == m_runs.size())
            return ColouredText::automatic;
        length = std::min(length, m_start + m_runs[m_run].length - index);
        return std::max(m_runs[m_run].colour, ColouredText::automatic);
    }

private:
    const QList<ColouredText::Run> &m_runs;
    qsizetype m_run = 0;
    qsizetype m_start = 0;
};

// What apply() found to do. Positions stay right while it is done.
struct Changes
{
    struct Letter
    {
        int position;
        QString text; // one character
    };

    QList<Piece> colours;
    QList<Letter> letters;
};

void compareColours(const QTextBlock &block, int from, int to, qsizetype index, RunReader &runs,
                    Changes &changes)
{
    forEachPiece(block, from, to, [&](Piece piece) {
        while (piece.length > 0) {
            qsizetype length = piece.length;
            const Colour colour = runs.at(index + piece.position - from, length);
            const int step = static_cast<int>(length);
            if (colour != piece.colour)
                changes.colours.append({piece.position, step, colour});
            piece.position += step;
            piece.length -= step;
        }
    });
}

void compareLetters(QStringView shown, QStringView wanted, int from, Changes &changes)
{
    if (shown == wanted)
        return;
    for (qsizetype i = 0; i < shown.size();) {
        const bool pair = shown.sliced(i).size() > 1 && shown[i].isHighSurrogate() &&
                          shown[i + 1].isLowSurrogate();
        const qsizetype length = pair ? 2 : 1;
        const QStringView is = shown.sliced(i, length);
        const QStringView becomes = wanted.sliced(i, length);
        if (is != becomes && is.compare(becomes, Qt::CaseInsensitive) == 0)
            changes.letters.append({from + static_cast<int>(i), becomes.toString()});
        i += length;
    }
}

Changes compare(const QTextDocument &document, const BoxText &text, qint32 start,
                const ColouredText &wanted)
{
    Changes changes;
    RunReader runs(wanted.runs);
    int from = text.toDocument(start);
    QTextBlock block = document.findBlock(from);
    for (qsizetype index = 0; block.isValid() && index < wanted.text.size();) {
        const int lineEnd = block.position() + block.length() - 1;
        const qsizetype length = std::min<qsizetype>(lineEnd - from, wanted.text.size() - index);
        const int to = from + static_cast<int>(length);
        QString line = block.text();
        BoxMarks::restore(block, line);
        compareColours(block, from, to, index, runs, changes);
        compareLetters(QStringView(line).sliced(from - block.position(), length),
                       QStringView(wanted.text).sliced(index, length), from, changes);
        index += length + 2;
        block = block.next();
        from = block.position();
    }
    return changes;
}

// The new letter goes in behind the old one, which is then removed: a caret on
// either side stays where it is.
void setLetter(QTextCursor &cursor, const Changes::Letter &letter)
{
    const int length = static_cast<int>(letter.text.size());
    cursor.setPosition(letter.position + length);
    cursor.insertText(letter.text, cursor.charFormat());
    cursor.setPosition(letter.position);
    cursor.setPosition(letter.position + length, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

void setColour(QTextCursor &cursor, const Piece &piece)
{
    cursor.setPosition(piece.position + 1);
    QTextCharFormat format = cursor.charFormat();
    BoxFormats::setColour(format, piece.colour);
    cursor.setPosition(piece.position);
    cursor.setPosition(piece.position + piece.length, QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
}

} // namespace

void BoxColours::paint(QTextDocument &document, int from, int to, Colour colour)
{
    QList<Piece> pieces;
    for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() < to;
         block = block.next()) {
        forEachPiece(block, from, to, [&](const Piece &piece) { pieces.append(piece); });
    }
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (Piece &piece : pieces) {
        const bool isRight = piece.colour == colour;
        piece.colour = colour;
        if (!isRight)
            setColour(cursor, piece);
    }
    cursor.endEditBlock();
}

ColouredText BoxColours::read(const QTextDocument &document, const BoxText &text, qint32 start,
                              qint32 length)
{
    ColouredText result;
    const qint32 first = std::clamp(start, 0, text.length());
    const qint32 last = first + std::clamp(length, 0, text.length() - first);
    const int from = text.toDocument(first);
    const int to = text.toDocument(last);
    result.text = text.read(from, to);
    for (QTextBlock block = document.findBlock(from); block.isValid(); block = block.next()) {
        forEachPiece(block, from, to,
                     [&](const Piece &piece) { result.appendRun(piece.length, piece.colour); });
        if (block.position() + block.length() > to)
            break;
        const Colour colour =
            result.runs.isEmpty() ? ColouredText::automatic : result.runs.constLast().colour;
        result.appendRun(2, colour);
    }
    return result;
}

bool BoxColours::apply(QTextDocument &document, const BoxText &text, qint32 start,
                       const ColouredText &wanted)
{
    const Changes changes = compare(document, text, start, wanted);
    if (changes.colours.isEmpty() && changes.letters.isEmpty())
        return false;
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (const Changes::Letter &letter : changes.letters)
        setLetter(cursor, letter);
    for (const Piece &piece : changes.colours)
        setColour(cursor, piece);
    cursor.endEditBlock();
    return true;
}

} // namespace ORVTListview
