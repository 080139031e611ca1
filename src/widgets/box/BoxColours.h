#pragma once

#include "base/ColouredText.h"

class QTextDocument;

namespace ORVTListview {

class BoxText;

// The text colours of a document's lines, read and set in place.
namespace BoxColours {

// A line end belongs to the run before it; neighbouring runs differ in colour.
ColouredText read(const QTextDocument &document, const BoxText &text, qint32 start, qint32 length);

// Gives the text from start on the colours of `wanted`, which is as long as the
// text it covers, and takes over its letter case. Nothing else changes: line ends
// and characters that differ in more than their case stay. What is right already
// is not touched. Returns whether anything changed.
bool apply(QTextDocument &document, const BoxText &text, qint32 start, const ColouredText &wanted);

// Gives document positions from `from` to `to` one colour, which may be
// ColouredText::automatic.
void paint(QTextDocument &document, int from, int to, Colour colour);

} // namespace BoxColours
} // namespace ORVTListview
