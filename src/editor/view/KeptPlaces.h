#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QTextBlock>

#include <optional>

class QTextDocument;

namespace ORVTListview {

// Places in a document that are kept while it is edited: what lies behind a change moves,
// and what is taken away is empty from then on. What one change takes away and puts in
// again, such as a line that goes elsewhere, keeps its place in it. A change costs what it
// touches, however many places there are.
// Why these are no cursors: docs/decisions/code-view.md.
class KeptPlaces
{
public:
    // Lines are whole ones with their ends, whatever is typed on them.
    enum class Kind { Texts, Lines };

    struct Span
    {
        int from = 0;
        int to = 0;
    };

    // The document outlives it.
    KeptPlaces(const QTextDocument &document, Kind kind);

    // In any order; the number of each here is its name from then on.
    void set(const QList<Span> &spans);

    // Where they are now, by name; and the same ones elsewhere.
    QList<Span> byName() const;
    void put(const QList<Span> &spans);

    // From the top.
    bool isEmpty() const { return m_kept.isEmpty(); }
    qsizetype size() const { return m_kept.size(); }
    Span at(qsizetype i) const;
    qsizetype nameAt(qsizetype i) const { return m_kept[i].name; }
    QTextBlock lineAt(qsizetype i) const;

    // Whether it had text and has none any more; and whether any of those there is so.
    bool isGone(qsizetype i) const;
    bool areGone(int from, int to) const;

    // The first that begins there or behind; the size for none.
    qsizetype firstFrom(int position) const;

    // As QTextDocument::contentsChange tells of it.
    void noteChange(int from, int removed, int added);

    // Letters there have become others, one each.
    void noteLetters(int from, int added);

private:
    struct Kept
    {
        Span span;
        qsizetype name = 0;
        bool hadText = false;
        int line = 0; // the one it begins on, from 0, and
        int column = 0;
        QString text; // of that line
    };
    struct Change
    {
        int from = 0;
        int removed = 0;
        int added = 0;
        int moreLines = 0;

        int formerEnd() const { return from + removed; }
        int end() const { return from + added; }
        int shift() const { return added - removed; }
        int moved(int place) const;
    };

    Span wholeLine(const QTextBlock &line) const;
    void settle(qsizetype i);
    void move(Kept &kept, const Change &change) const;
    std::optional<Span> found(const Kept &kept, const Change &change) const;
    QTextBlock sameLine(const Kept &kept, const Change &change) const;
    QTextBlock nearestLine(const Kept &kept, const Change &change) const;
    std::optional<Span> onChangedLine(const Kept &kept, const Change &change) const;
    void read(Kept &kept);
    void sort(qsizetype from, qsizetype to);

    const QTextDocument &m_document;
    const Kind m_kind;
    QList<Kept> m_kept;      // from the top
    qsizetype m_settled = 0; // how many of them; the others
    int m_shift = 0;         // are still to be moved by this,
    int m_lineShift = 0;     // and by so many lines
    int m_longest = 0;
    int m_lineCount = 0;
};

} // namespace ORVTListview
