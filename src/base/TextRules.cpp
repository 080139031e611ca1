#include "base/TextRules.h"

#include <QtCore/QString>

#include <array>

namespace ORVTListview {
namespace {

constexpr bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype skipDigits(QStringView text, qsizetype from)
{
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

qsizetype skipSign(QStringView text, qsizetype from)
{
    return from < text.size() && (text[from] == u'+' || text[from] == u'-') ? from + 1 : from;
}

template <typename IsOuter>
QStringView trimmed(QStringView text, IsOuter isOuter)
{
    while (!text.isEmpty() && isOuter(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isOuter(text.back()))
        text.chop(1);
    return text;
}

// Where the digits and the decimal point end, or `from` when there is no digit.
qsizetype skipMantissa(QStringView text, qsizetype from)
{
    const qsizetype whole = skipDigits(text, from);
    qsizetype digits = whole - from;
    qsizetype end = whole;
    if (end < text.size() && text[end] == u'.') {
        end = skipDigits(text, end + 1);
        digits += end - whole - 1;
    }
    return digits > 0 ? end : from;
}

bool isExponent(QStringView text)
{
    if (text.isEmpty() || text.front().toUpper() != u'E')
        return false;
    const qsizetype digits = skipSign(text, 1);
    return digits < text.size() && skipDigits(text, digits) == text.size();
}

constexpr char16_t smallAscii(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 0x20) : c;
}

constexpr char16_t largeLatin1(char16_t c)
{
    const bool isSmall = c >= 0xE0 && c != 0xF7;
    return isSmall ? static_cast<char16_t>(c - 0x20) : c;
}

// What has its upper case beyond Latin-1, or in two characters.
constexpr bool needsCaseTable(char16_t c)
{
    return c > 0xFE || c == 0xB5 || c == 0xDF;
}

// The folded form of a character in Latin-1; 0 for one that needs the table.
constexpr auto foldedLatin1 = [] {
    std::array<char16_t, 256> folded{};
    constexpr auto size = char16_t(folded.size());
    for (char16_t c = 0; c < size; ++c) {
        if (!needsCaseTable(c))
            folded[c] = c < 0x80 ? smallAscii(c) : largeLatin1(c);
    }
    return folded;
}();

void foldByTable(QStringView text, FoldedText &folded)
{
    const QString upper = text.toString().toUpper();
    folded.resize(upper.size());
    for (qsizetype i = 0; i < upper.size(); ++i)
        folded[i] = smallAscii(upper[i].unicode());
}

} // namespace

QStringView trimmedSpaces(QStringView text)
{
    return trimmed(text, [](QChar c) { return c == u' '; });
}

bool isNumeric(QStringView text)
{
    text = trimmed(text, isBlank);
    const qsizetype start = skipSign(text, 0);
    const qsizetype end = skipMantissa(text, start);
    if (end == start)
        return false;
    return end == text.size() || isExponent(text.sliced(end));
}

std::optional<bool> toBoolean(QStringView text)
{
    const QStringView word = trimmed(text, isBlank);
    if (word.compare(u"true", Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(u"false", Qt::CaseInsensitive) == 0)
        return false;
    if (!isNumeric(word))
        return std::nullopt;
    // The digits before the exponent tell zero from non-zero whatever the size.
    for (const QChar c : word) {
        if (c.toUpper() == u'E')
            break;
        if (c >= u'1' && c <= u'9')
            return true;
    }
    return false;
}

void foldCase(QStringView text, FoldedText &folded)
{
    folded.resize(text.size());
    char16_t *next = folded.data();
    for (const QChar c : text) {
        const char16_t fold = c.unicode() < foldedLatin1.size() ? foldedLatin1[c.unicode()] : u'\0';
        if (fold == 0)
            return foldByTable(text, folded);
        *next++ = fold;
    }
}

QString foldedCase(QStringView text)
{
    FoldedText folded;
    foldCase(text, folded);
    return QStringView(folded.data(), folded.size()).toString();
}

bool isSameWord(QStringView a, QStringView b)
{
    return a == b || foldedCase(a) == foldedCase(b);
}

QString withCrLf(const QString &text)
{
    QString result;
    result.reserve(text.size() + text.size() / 16);
    qsizetype copied = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c != u'\r' && c != u'\n')
            continue;
        const bool pair = c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (!pair) {
            result.append(QStringView(text).sliced(copied, i - copied));
            result.append(QStringLiteral("\r\n"));
            copied = i + 1;
        }
        i += pair ? 1 : 0;
    }
    if (copied == 0)
        return text;
    result.append(QStringView(text).sliced(copied));
    return result;
}

QString asInBox(QString text)
{
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.remove(QChar::Null);
    return withCrLf(text);
}

} // namespace ORVTListview
