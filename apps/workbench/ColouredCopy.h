#pragma once

namespace ORVTListview {

class RichTextBox;

// Puts the selected text on the clipboard three times, as plain text, as RTF and as
// HTML in its colours, for a report or a mail. Without a selection, nothing.
void copyWithColours(RichTextBox &box);

} // namespace ORVTListview
