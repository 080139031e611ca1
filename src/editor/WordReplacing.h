#pragma once

class QString;

namespace ORVTListview {

class ProgramEditing;

// Replaces a word of the program throughout, as one action under the wait cursor.
// Raises nothing: ErrMsg receives the description of a failure.
void replaceWord(ProgramEditing &editing, const QString &word, const QString &text, bool inColours,
                 QString &ErrMsg);

} // namespace ORVTListview
