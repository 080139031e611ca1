#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace ORVTListview {

// Lines and words of a program text, whose lines are separated by CR LF. A caret
// position counts the characters before it (0-based); line and word bounds are
// 1-based character positions. A caret position is thus also the 1-based index
// of the character just before it.

ORVT_HOUSE_EXPORT bool IsCommentLine(QStringView Line);

// First and last character of the line that holds the caret; LineEnd is
// LineStart - 1 for an empty line.
struct LineRange
{
    qint32 LineStart = 1;
    qint32 LineEnd = 0;

    friend bool operator==(const LineRange &, const LineRange &) = default;
};
LineRange LineBounds(QStringView Text, qint32 Position);

bool IsCommentAt(QStringView Text, qint32 Position);

// The two walks stop at different characters on purpose: backwards at blank, tab,
// "(" and LF, forwards at blank, tab, ")" and CR. A blank or tab at Position
// itself is stepped over by FindWordEnd, which gives the character after the word.
qint32 FindWordStart(QStringView Text, qint32 Position);
qint32 FindWordEnd(QStringView Text, qint32 Position);

struct WordAtCaret
{
    QString Word;
    QString PartBeforeCaret;
    qint32 WordStart = 1; // 1-based

    friend bool operator==(const WordAtCaret &, const WordAtCaret &) = default;
};
ORVT_HOUSE_EXPORT WordAtCaret wordAtCaret(QStringView Text, qint32 Caret);

// The leading blanks and tabs of a line; all of a line that holds nothing else.
ORVT_HOUSE_EXPORT QString GetLineIndent(const QString &Line);

} // namespace ORVTListview
