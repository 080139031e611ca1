#pragma once

#include <QtGui/QAccessible>

class QTextDocument;

namespace ORVTListview {

// The characters, words, sentences and lines of a document, as assistive programs ask for
// them. Each takes time in its own line only.
class TextUnits
{
public:
    using Kind = QAccessible::TextBoundaryType;

    struct Unit
    {
        int start = 0;
        int end = 0;
    };

    TextUnits(const QTextDocument &document, Kind kind)
        : m_document(document)
        , m_kind(kind)
    {
    }

    // That which has a position; a line, and a paragraph, is without its line end.
    Unit at(int position) const;

    // The nearest one that begins before that, or behind it; an empty one at the text's
    // begin or end where there is none.
    Unit before(int position) const;
    Unit after(int position) const;

private:
    int length() const;
    bool isLine() const;
    bool counts(const Unit &unit) const { return isLine() || unit.start < unit.end; }

    const QTextDocument &m_document;
    const Kind m_kind;
};

} // namespace ORVTListview
