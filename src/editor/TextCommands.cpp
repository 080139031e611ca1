#include "editor/TextCommands.h"

#include "base/TextRules.h"
#include "editor/EditorThread.h"
#include "editor/LineCommands.h"
#include "editor/rules/BlockIndent.h"
#include "editor/rules/LineTexts.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/CodeWordList.h"
#include <ORVTListview/RichTextBox.h>

#include <algorithm>

namespace ORVTListview {

// Only what differs in a line is touched.
void TextCommands::rewrite(const LineSpan &lines, const QStringList &texts) const
{
    const RichTextBox &box = m_tools.box;
    QList<TextEdit> edits;
    CommandChange change;
    for (qint32 line = lines.first; line <= lines.last; ++line) {
        const auto edit =
            difference(box.lineText(line), texts[line - lines.first], box.lineStart(line));
        if (!edit)
            continue;
        edits.append(*edit);
        change.pieces.append(edit->piece);
        change.texts.append({edit->text, {{edit->text.size(), ColouredText::automatic}}});
        change.linesToFinish.append(line);
    }
    const auto placed = [&](qint32 place) {
        const bool isLineBegin = place == box.lineStart(box.GetLineFromChar(place));
        return placeAfter(edits, place, isLineBegin);
    };
    const auto [anchor, caret] = selectionOf(box);
    change.selection = {placed(anchor), placed(caret)};
    m_tools.carryOut(change);
}

void TextCommands::toggleComment() const
{
    if (!m_tools.begin())
        return;
    const LineSpan lines = selectedLines(m_tools.box);
    rewrite(lines, withCommentsToggled(textsOf(m_tools.box, lines)));
}

void TextCommands::upperCase() const
{
    changeCase([](const QString &text) { return text.toUpper(); });
}

void TextCommands::lowerCase() const
{
    changeCase([](const QString &text) { return text.toLower(); });
}

void TextCommands::changeCase(QString (*change)(const QString &text)) const
{
    if (!m_tools.begin())
        return;
    const TextPiece piece{m_tools.box.SelStart(), m_tools.box.SelLength()};
    const ColouredText before = m_tools.box.coloured(piece.start, piece.length);
    ColouredText after;
    qsizetype place = 0;
    for (const ColouredText::Run &run : before.runs) {
        const QString text = change(before.text.sliced(place, run.length));
        after.text += text;
        after.appendRun(text.size(), run.colour);
        place += run.length;
    }
    if (after.text == before.text)
        return;
    const qint32 end = piece.start + static_cast<qint32>(after.text.size());
    const auto [anchor, caret] = selectionOf(m_tools.box);
    const BoxSelection then =
        anchor < caret ? BoxSelection{piece.start, end} : BoxSelection{end, piece.start};
    m_tools.carryOut({{piece}, {after}, {}, then});
}

void TextCommands::tidy() const
{
    if (!m_tools.begin())
        return;
    const RichTextBox &box = m_tools.box;
    const LineSpan lines =
        box.SelLength() > 0 ? selectedLines(box) : LineSpan{0, box.lineCount() - 1};
    BlockIndent indent;
    QStringList texts;
    for (qint32 line = 0; line <= lines.last; ++line) {
        const QString before = box.lineText(line);
        const int steps = indent.read(before);
        if (line < lines.first)
            continue;
        const QString words = before.sliced(GetLineIndent(before).size());
        const QString after = IsCommentLine(before) ? words : spaced(words);
        texts << (after.isEmpty() ? after : m_lines.indentUnit().repeated(steps) + after);
    }
    rewrite(lines, texts);
}

// A tab behind a word would go and the two words become one; without known words colouring
// has a message for each. What colouring would make a comment is none.
QString TextCommands::spaced(const QString &words) const
{
    QString text = words;
    text.replace(u'\t', u' ');
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    if (m_tools.thread.knownWords().index().isEmpty())
        return text;
    const QString coloured =
        colouredText(m_tools.thread.colouring(), text, false, m_tools.thread.settings()).text;
    return IsCommentLine(coloured) ? text : coloured;
}

} // namespace ORVTListview
