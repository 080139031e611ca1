#pragma once

#include "base/ColouredText.h"
#include "base/TextPiece.h"

#include <QtCore/QList>

#include <functional>

namespace ORVTListview {

class RichTextBox;

// Called with the first of some pieces and with how many they are, when these are replaced
// and those before them are not yet.
using FinishPieces = std::function<void(qsizetype first, qsizetype count)>;

// As RichTextBox::replacePieces, and raises one Change; but pieces far from each other are
// changes of their own to whoever follows the document, and goes through what has changed
// from one end to the other. A receiver that changes the text before them in between ends it:
// the places would be others. Returns whether nobody but `finish` has changed the document
// meanwhile.
bool replaceFarPieces(RichTextBox &box, const QList<TextPiece> &pieces,
                      const QList<ColouredText> &texts, const FinishPieces &finish = {});

} // namespace ORVTListview
