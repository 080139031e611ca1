#pragma once

#include <QtCore/QList>

class QTextDocument;

namespace ORVTListview {

// The parts of a document that have changed since it was last looked at, apart from each
// other. Changes far from each other stay two, so that nobody has to go through all that
// lies between.
class ChangedRanges
{
public:
    struct Range
    {
        int from = 0; // places in the document as it is now
        int to = 0;
        int grown = 0; // by so many characters, and lines
        int lines = 0;
    };

    explicit ChangedRanges(const QTextDocument &document);

    // As QTextDocument::contentsChange tells of it.
    void note(int from, int removed, int added);
    void clear() { m_ranges.clear(); }

    // From the top.
    const QList<Range> &ranges() const { return m_ranges; }

private:
    void insert(const Range &changed);
    void joinNearest();

    const QTextDocument &m_document;
    QList<Range> m_ranges;
    int m_length = 0; // after the last change
    int m_lines = 0;
};

} // namespace ORVTListview
