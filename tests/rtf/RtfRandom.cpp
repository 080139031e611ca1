#include "rtf/RtfRandom.h"

#include <array>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

constexpr std::array<qint32, 6> colours = {
    RtfFormat::automatic, RtfFormat::automatic, 0, 0x0000FF, 0xFFFFFF, 0x123456};

const std::array<QString, 6> fontNames = {
    QString(), u"Arial"_s, u"Courier New"_s, u"D\u00e9j\u00e0; Vu"_s, u"a\\b{c}"_s, u" \u4e2d 1"_s};

const std::array<QString, 32> snippets = {
    u" "_s,      u"  "_s,     u"a"_s,          u"IF"_s,      u"12"_s,     u"-1"_s,     u"\\"_s,
    u"{"_s,      u"}"_s,      u"\\par"_s,      u"{\\b x}"_s, u"\t"_s,     u"\u00a0"_s, u"\u00ad"_s,
    u"\u2011"_s, u"\u2028"_s, u"\u2029"_s,     u"\u20ac"_s,  u"\u00e4"_s, u"\ufeff"_s, u"\ufffd"_s,
    u"\uffff"_s, u"\x01"_s,   u"\x0B\x0C"_s,   u"\x7F"_s,    u"\u0080"_s, u"?"_s,      u"'41"_s,
    u"*"_s,      u";"_s,      u"\U0001F600"_s, u"\u202e"_s};

} // namespace

RtfRandom::RtfRandom(quint32 seed)
    : m_numbers(seed)
{
}

int RtfRandom::below(int limit)
{
    return static_cast<int>(m_numbers() % static_cast<quint32>(limit));
}

RtfFormat RtfRandom::format()
{
    return {.fontName = oneOf(fontNames),
            .halfPoints = below(3) * 17,
            .colour = oneOf(colours),
            .backColour = oneOf(colours),
            .bold = below(2) == 0,
            .italic = below(3) == 0,
            .underline = below(3) == 0,
            .strike = below(4) == 0};
}

QString RtfRandom::text()
{
    QString text;
    for (int i = below(6); i >= 0; --i) {
        if (below(20) == 0)
            text += QChar(static_cast<char16_t>(0xD800 + below(0x800))); // half of a pair
        else
            text += oneOf(snippets);
    }
    return text;
}

QList<RtfPiece> RtfRandom::pieces()
{
    QList<RtfPiece> list;
    RtfFormat current = format();
    for (int i = below(12); i > 0; --i) {
        if (below(3) == 0)
            current = format();
        if (below(3) == 0)
            list.append(RtfPiece{.isLineEnd = true});
        else
            list.append(RtfPiece{.text = text(), .format = current});
    }
    return list;
}

} // namespace ORVTListview::Testing
