#pragma once

#include <QtCore/QList>

class QString;

namespace ORVTListview {

class RichTextBox;
struct EditorThread;
struct TextPiece;

// Puts one text in the place of pieces of the program, as one change and in its
// colours: on a comment line in the comment's, elsewhere as colouring shows it, in
// listed spelling and with brackets set off. Words that it touches, and lines that
// become a comment or cease to be one, take the colours they have from now on;
// everything else stays as it is. The caret ends behind the last text.
void replaceInColours(const EditorThread &thread, RichTextBox &box, const QList<TextPiece> &pieces,
                      const QString &text);

} // namespace ORVTListview
