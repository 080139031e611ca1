#pragma once

#include "editor/rules/language/CodeText.h"
#include <ORVTListview/Colour.h>

namespace ORVTListview {

class RichTextBox;
struct EditorThread;

// The word around a 0-based position of the box, looked for in its line alone: no
// word goes over a line end. WordStart is 1-based, in the whole text.
WordAtCaret GetWordAtCaret(const RichTextBox &box, qint32 position);
WordAtCaret GetWordAtCaret(const RichTextBox &box);

struct ColouredWord
{
    QString Word;
    qint32 WordStart = 1;            // 1-based
    ORVTListview::Colour Colour = 0; // the comment colour on a comment line
};
ColouredWord GetWordAndColourAt(const EditorThread &thread, const RichTextBox &box,
                                qint32 position);

// Puts a word in the place of the one at the caret, in the colour, which may be
// ColouredText::automatic, and the caret behind it.
void SetWordAtCaret(RichTextBox &box, const QString &word, qint32 colour);

} // namespace ORVTListview
