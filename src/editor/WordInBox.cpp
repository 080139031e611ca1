#include "editor/WordInBox.h"

#include "base/ColouredText.h"
#include "editor/EditorThread.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/language/Vocabulary.h"
#include <ORVTListview/RichTextBox.h>

#include <algorithm>

namespace ORVTListview {

WordAtCaret GetWordAtCaret(const RichTextBox &box, qint32 position)
{
    const qint32 line = box.GetLineFromChar(position);
    const qint32 lineStart = box.lineStart(line);
    const QString text = box.lineText(line);
    const qint32 offset = std::clamp(position - lineStart, 0, static_cast<qint32>(text.size()));
    WordAtCaret word = wordAtCaret(text, offset);
    word.WordStart += lineStart;
    return word;
}

WordAtCaret GetWordAtCaret(const RichTextBox &box)
{
    return GetWordAtCaret(box, box.SelStart());
}

ColouredWord GetWordAndColourAt(const EditorThread &thread, const RichTextBox &box, qint32 position)
{
    const RichTextSettings &settings = thread.settings();
    const WordAtCaret found = GetWordAtCaret(box, position);
    ColouredWord word{found.Word, found.WordStart, 0};
    QString shown;
    if (IsCommentLine(box.lineText(box.GetLineFromChar(position))))
        word.Colour = settings.CommentColor;
    else if (!word.Word.isEmpty())
        word.Colour = thread.vocabulary.ClassifyWord(word.Word, shown, settings);
    return word;
}

void SetWordAtCaret(RichTextBox &box, const QString &word, qint32 colour)
{
    const WordAtCaret old = GetWordAtCaret(box);
    const qint32 start = old.WordStart - 1;
    const Colour shown = colour == ColouredText::automatic ? colour : shownColour(colour);
    const ColouredText coloured{word, {{word.size(), shown}}};
    if (word == old.Word) {
        box.recolour(start, coloured);
        box.setSelStart(start + static_cast<qint32>(word.size()));
        return;
    }
    box.setSelStart(start);
    box.setSelLength(static_cast<qint32>(old.Word.size()));
    box.setSelColoured(coloured);
}

} // namespace ORVTListview
