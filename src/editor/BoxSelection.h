#pragma once

#include <QtCore/QStringList>

namespace ORVTListview {

class RichTextBox;

// Lines from 0, the last one included.
struct LineSpan
{
    qint32 first = 0;
    qint32 last = 0;

    qint32 count() const { return last - first + 1; }
};

// The two ends of a selection as positions of the box.
struct BoxSelection
{
    qint32 anchor = 0;
    qint32 caret = 0;
};
BoxSelection selectionOf(const RichTextBox &box);

// An end behind the text comes to the text's end.
void select(RichTextBox &box, const BoxSelection &selection);

// The lines that the selection touches; one at whose very start it ends is not touched.
LineSpan selectedLines(const RichTextBox &box);

QStringList textsOf(const RichTextBox &box, const LineSpan &lines);

// Where a line ends, in front of its line end.
qint32 lineEnd(const RichTextBox &box, qint32 line);

} // namespace ORVTListview
