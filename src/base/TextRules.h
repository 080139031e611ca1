#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>
#include <QtCore/QVarLengthArray>

#include <optional>

namespace ORVTListview {

// What words of a program stand between on a line: spaces and tabs, no other white
// space.
constexpr bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

// The text without leading and trailing spaces (U+0020 only).
QStringView trimmedSpaces(QStringView text);

// Numeric, in every locale alike: blanks (spaces, tabs) around an optional sign,
// digits with an optional decimal point on either side or between them, and an
// optional exponent ("E", optional sign, digits).
ORVT_HOUSE_EXPORT bool isNumeric(QStringView text);

// "true" or "false" in any letter case, or a numeric text, where only zero is
// false. None for anything else.
std::optional<bool> toBoolean(QStringView text);

// The text in a form in which texts that differ in letter case only are equal: those
// that QString::toUpper makes equal, by which hosts key their collections. The form may
// be longer than the text. A to Z are small in it, so that "_" sorts before letters.
// Why it is so: docs/decisions/collections.md.
using FoldedText = QVarLengthArray<char16_t, 64>;
void foldCase(QStringView text, FoldedText &folded);
ORVT_HOUSE_EXPORT QString foldedCase(QStringView text);
ORVT_HOUSE_EXPORT bool isSameWord(QStringView a, QStringView b);

// The text with every line end (CR LF, CR or LF) written as CR LF.
ORVT_HOUSE_EXPORT QString withCrLf(const QString &text);

// The text as a rich-text box gives it back: every line end, U+2029 too, as CR LF,
// and no NUL.
ORVT_HOUSE_EXPORT QString asInBox(QString text);

} // namespace ORVTListview
