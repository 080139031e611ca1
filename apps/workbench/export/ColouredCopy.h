#pragma once

namespace ORVTListview {

class PaperColours;
class RichTextBox;

// Puts the selected text on the clipboard three times, as plain text, as RTF and as
// HTML in the colours of paper, for a report or a mail. Without a selection, nothing.
void copyWithColours(const RichTextBox &box, const PaperColours &colours);

} // namespace ORVTListview
