#pragma once

#include "base/ColouredText.h"

#include <QtCore/QString>

#include <optional>

namespace ORVTListview {

class RichTextBox;
struct EditorThread;

// Plain text in the colours that it takes in the place of the selection; nothing at
// all, with a message, when it holds a "\". On a comment line the first line pasted
// continues the comment. AsItIs it gets
// colours and listed spelling alone.
enum class Pasting { AsColoured, AsItIs };
std::optional<ColouredText> textToPaste(const EditorThread &thread, const RichTextBox &box,
                                        const QString &data, Pasting how);

// Larger clipboard texts are refused, with a message. Bytes of UTF-16.
constexpr qsizetype largestPaste = qsizetype{64} * 1024 * 1024;

// False, after the message, for a text that is too large.
bool acceptPasteSize(const EditorThread &thread, const QString &data);

} // namespace ORVTListview
