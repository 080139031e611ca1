#include "rtf/RtfEscapes.h"

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
    std::array<char, 24> digits{};
    const char *end = std::to_chars(digits.begin(), digits.end(), number, base).ptr;
    out += QLatin1StringView(digits.begin(), end);
}

void appendByte(QString &out, char16_t byte)
{
    out += byte < 0x10 ? "\\'0"_L1 : "\\'"_L1;
    appendDigits(out, byte, 16);
}

// A UTF-16 unit is a signed number of 16 bits.
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

// An empty group keeps blanks in a row apart: where they stand side by side,
// LibreOffice takes them for layout and puts other characters there.
void appendRtfText(QString &out, QStringView text)
{
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isBehindBlank = at > 0 && text[at] == u' ' && text[at - 1] == u' ';
        if (isPlain(text[at]) && !isBehindBlank)
            continue;
        out += text.sliced(start, at - start);
        start = isBehindBlank ? at : at + 1;
        if (isBehindBlank)
            out += "{}"_L1;
        else
            appendEscaped(out, text[at]);
    }
    out += text.sliced(start);
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

QByteArray sevenBitRtf(QStringView rtf)
{
    QString out;
    out.reserve(rtf.size());
    for (const QChar c : rtf) {
        if (c < u'\x80')
            out += c;
        else
            appendUnit(out, c.unicode());
    }
    return out.toLatin1();
}

QString rtfColourEntry(qint32 red, qint32 green, qint32 blue)
{
    return u"\\red%1\\green%2\\blue%3;"_s.arg(QString::number(red), QString::number(green),
                                              QString::number(blue));
}

} // namespace ORVTListview
