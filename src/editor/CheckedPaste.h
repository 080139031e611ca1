#pragma once

#include <QtCore/QString>

namespace ORVTListview {

class RichTextBox;

// What became of a text that was to be pasted.
enum class Pasted {
    Done,
    Refused, // nothing has changed
    Nothing, // it holds no text; what was selected is gone
};

// Puts text in the place of the selection: RTF as it is, plain text in its colours,
// but nothing at all, with a message, when it holds a "\". On a comment line the
// first line pasted continues the comment.
Pasted PasteText(RichTextBox &box, const QString &Data);

// Larger clipboard texts are refused, with a message. Bytes of UTF-16.
constexpr qsizetype largestPaste = 64 * 1024 * 1024;

// False, after the message, for a text that is too large.
bool acceptPasteSize(const QString &data);

} // namespace ORVTListview
