#pragma once

#include <QtCore/QString>

#include <algorithm>

namespace ORVTListview {

inline bool isLayoutCharacter(QChar character)
{
    const char16_t code = character.unicode();
    return code < 0x20 || code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
}

// As one line, with a blank for each tab and line end.
inline QString shownText(const QString &text)
{
    if (std::none_of(text.cbegin(), text.cend(), isLayoutCharacter))
        return text;
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    std::replace_if(shown.begin(), shown.end(), isLayoutCharacter, QChar(u' '));
    return shown;
}

// Up to so many letters of a text; an ellipsis tells that there are more.
inline QString beginningOf(const QString &text, qsizetype letters)
{
    if (text.size() <= letters)
        return text;
    const bool splitsPair = letters > 0 && text.at(letters - 1).isHighSurrogate();
    return text.left(splitsPair ? letters - 1 : letters) + QChar(0x2026);
}

// What a cell shows of its text at most, however wide it is. Shaping takes time for
// each letter, and a text may have a million.
constexpr qsizetype longestLine = 8192;

inline QString cellText(const QString &text)
{
    return shownText(beginningOf(text, longestLine));
}

// The text set off from what stands around it, which else would turn "°C" and "-5" round
// where one reads from right to left. The marks have no width.
inline QString inOwnDirection(const QString &text, Qt::LayoutDirection around)
{
    if (around == Qt::LeftToRight && !text.isRightToLeft())
        return text;
    constexpr QChar firstStrongIsolate(u'\u2068');
    constexpr QChar popDirectionalIsolate(u'\u2069');
    return firstStrongIsolate + text + popDirectionalIsolate;
}

} // namespace ORVTListview
