#pragma once

#include <QtCore/QString>

#include <memory>

class QAbstractScrollArea;

namespace ORVTListview::bench {

// QScintilla with Scintilla's lexer for line-oriented BASIC, which knows the words
// and names of the language and gives them styles of the same colours as ours.
// The text has no characters beyond ASCII.
class Scintilla
{
public:
    explicit Scintilla(const QString &text);
    ~Scintilla();

    QAbstractScrollArea &widget() const; // as wide as it likes, not yet shown
    QString text() const;
    void putCaret(qsizetype position) const;

    // What it has of what our editor shows beside the text: the lines' numbers, signs and
    // folds in its margins, the caret's line, pairs, guides, blanks, and so many problems
    // underlined and lines marked, evenly over the text.
    void showAll(int problems, int bookmarks) const;
    int problems() const;
    int foldDepthAt(qsizetype position) const; // how deep its lines are in blocks

    // Styles the whole text anew.
    void restyle() const;

    // How many words of each style there are; of comments, lines.
    struct StyledWords
    {
        qsizetype comments = 0;
        qsizetype reservedWords = 0;
        qsizetype names = 0;
    };
    StyledWords styledWords() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview::bench
