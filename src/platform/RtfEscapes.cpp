#include "platform/RtfEscapes.h"

#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

bool isPlain(QChar c)
{
    return c >= u' ' && c < u'\x80' && c != u'\\' && c != u'{' && c != u'}';
}

void appendDigits(QString &out, qint64 number, int base)
{
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), number, base).ptr;
    out += QLatin1StringView(digits.begin(), end);
}

void appendByte(QString &out, char16_t byte)
{
    out += byte < 0x10 ? "\\'0"_L1 : "\\'"_L1;
    appendDigits(out, byte, 16);
}

void appendUnit(QString &out, char16_t unit)
{
    out += "\\u"_L1;
    appendRtfNumber(out, static_cast<qint16>(unit));
    out += u'?';
}

// Every control word written here ends in a character that is not part of the
// text, so that no blank or digit of the text is taken for its own.
void appendEscaped(QString &out, QChar c)
{
    if (c == u'\0')
        return;
    if (c == u'\t')
        out += "\\tab "_L1;
    else if (c < u' ')
        appendByte(out, c.unicode());
    else if (c < u'\x80')
        (out += u'\\') += c;
    else
        appendUnit(out, c.unicode());
}

} // namespace

void appendRtfNumber(QString &out, qint64 number)
{
    appendDigits(out, number, 10);
}

void appendRtfText(QString &out, QStringView text)
{
    while (!text.isEmpty()) {
        const auto end = std::find_if_not(text.cbegin(), text.cend(), isPlain);
        const qsizetype length = end - text.cbegin();
        out += text.first(length);
        if (length < text.size())
            appendEscaped(out, *end);
        text = text.sliced(std::min(length + 1, text.size()));
    }
}

// A ";" of the name itself must not end the table's entry.
void appendRtfFontName(QString &out, const QString &name)
{
    for (const QChar c : name) {
        if (c == u';')
            out += "\\'3b"_L1;
        else
            appendRtfText(out, QStringView(&c, 1));
    }
}

} // namespace ORVTListview
