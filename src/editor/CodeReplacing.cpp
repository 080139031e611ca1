#include "editor/CodeReplacing.h"

#include "base/MessageService.h"
#include "base/TextRules.h"
#include "editor/EditorThread.h"
#include "editor/FarPieces.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ReplacedLines.h"
#include "editor/rules/colouring/TouchedLine.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/CodeWordList.h"
#include <ORVTListview/RichTextBox.h>

#include <array>
#include <optional>

namespace ORVTListview {
namespace {

// A text as it goes into a comment and into other lines, coloured when first needed.
class ColouredTwice
{
public:
    ColouredTwice(const EditorThread &thread, const QString &text)
        : m_thread(thread)
        , m_text(text)
    {
    }

    const ColouredText &on(bool commentLine)
    {
        std::optional<ColouredText> &text = m_coloured[commentLine ? 1 : 0];
        if (!text)
            text = colouredText(m_thread.colouring(), m_text, commentLine, m_thread.settings());
        return *text;
    }

private:
    const EditorThread &m_thread;
    QString m_text;
    std::array<std::optional<ColouredText>, 2> m_coloured;
};

// Finishes the words that new texts touch, line by line.
class Finishing
{
public:
    Finishing(const EditorThread &thread, RichTextBox &box)
        : m_thread(thread)
        , m_box(box)
    {
    }

    // A new text that begins at `start`, given from front to back.
    void touch(qint32 start, qint32 length, bool wasComment)
    {
        const qint32 first = m_box.GetLineFromChar(start);
        const qint32 last = m_box.GetLineFromChar(start + length);
        for (const qint32 line : {first, last}) {
            moveTo(line);
            m_touched.touch(start - m_lineStart, start + length - m_lineStart);
            m_wasComment = m_wasComment || wasComment;
        }
    }

    void finish()
    {
        if (m_line < 0)
            return;
        const QString text = m_box.lineText(m_line);
        const auto length = static_cast<qint32>(text.size());
        ColouredText finished = finishedLine(m_thread.colouring(), text, m_thread.settings());
        if (!m_wasComment && !IsCommentLine(text))
            m_touched.keepTheRest(finished, m_box.coloured(m_lineStart, length));
        m_box.recolour(m_lineStart, finished);
        m_touched = {};
        m_wasComment = false;
    }

private:
    void moveTo(qint32 line)
    {
        if (line == m_line)
            return;
        finish();
        m_line = line;
        m_lineStart = m_box.lineStart(line);
    }

    const EditorThread &m_thread;
    RichTextBox &m_box;
    qint32 m_line = -1; // none
    qint32 m_lineStart = 0;
    TouchedLine m_touched;
    bool m_wasComment = false;
};

} // namespace

void replaceInColours(const EditorThread &thread, RichTextBox &box, const QList<TextPiece> &pieces,
                      const QString &text)
{
    const MessageBatch oneBox(thread.messages.service());
    const QString stored = asInBox(text);
    const QList<ReplacedPiece> replaced = replacedPieces(box.Text(), pieces, stored);
    ColouredTwice coloured(thread, stored);
    QList<ColouredText> texts;
    texts.reserve(pieces.size());
    for (const ReplacedPiece &piece : replaced)
        texts.append(coloured.on(piece.isComment));

    const auto finish = [&](qsizetype first, qsizetype count) {
        if (thread.knownWords().index().isEmpty())
            return; // nothing to tell words by
        Finishing finishing(thread, box);
        qsizetype shift = 0;
        for (qsizetype i = first; i < first + count; ++i) {
            const qsizetype length = texts[i].text.size();
            finishing.touch(static_cast<qint32>(pieces[i].start + shift),
                            static_cast<qint32>(length), replaced[i].wasComment);
            shift += length - pieces[i].length;
        }
        finishing.finish();
    };
    replaceFarPieces(box, pieces, texts, finish);
}

} // namespace ORVTListview
