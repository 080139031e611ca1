#include "rtf/RtfCodePages.h"

#include "base/Utf8Text.h"

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr qint32 utf8Page = 65001;
constexpr qint32 westernPage = 1252;
constexpr qint32 macJapanesePage = 10001;

struct Charset
{
    qint32 charset;
    qint32 codePage;
};

constexpr Charset charsets[] = {
    {0, 1252},   // Western
    {77, 10000}, // Macintosh
    {78, macJapanesePage},
    {128, 932},  // Japanese
    {129, 949},  // Korean
    {134, 936},  // Chinese, simplified
    {136, 950},  // Chinese, traditional
    {161, 1253}, // Greek
    {162, 1254}, // Turkish
    {163, 1258}, // Vietnamese
    {177, 1255}, // Hebrew
    {178, 1256}, // Arabic
    {186, 1257}, // Baltic
    {204, 1251}, // Cyrillic
    {222, 874},  // Thai
    {238, 1250}, // Central European
    {254, 437},  // PC
    {255, 850},  // OEM
};

struct PairPage
{
    qint32 number;
    const char *decoder;
};

constexpr PairPage pairPages[] = {{932, "windows-932"},
                                  {macJapanesePage, "windows-932"},
                                  {936, "windows-936"},
                                  {949, "windows-949"},
                                  {950, "windows-950"}};

const PairPage *pairPage(qint32 codePage)
{
    const auto *const page =
        std::find_if(std::begin(pairPages), std::end(pairPages),
                     [codePage](const PairPage &each) { return each.number == codePage; });
    return page == std::end(pairPages) ? nullptr : page;
}

bool isLead(quint8 byte, qint32 codePage)
{
    const bool isJapanese = codePage == 932 || codePage == macJapanesePage;
    const bool isHalfWidth = isJapanese && byte >= 0xA0 && byte <= 0xDF;
    const bool isOwn = codePage == macJapanesePage && byte >= 0xFD;
    return byte > 0x80 && byte < 0xFF && !isHalfWidth && !isOwn;
}

// What the Macintosh has beside the characters of page 932; 0 for other bytes.
constexpr char16_t macJapaneseSingle(quint8 byte)
{
    switch (byte) {
    case 0x80:
        return u'\\';
    case 0xA0:
        return u'\u00a0';
    case 0xFD:
        return u'\u00a9';
    case 0xFE:
        return u'\u2122';
    case 0xFF:
        return u'\u2026';
    default:
        return 0;
    }
}

qsizetype pairLength(QByteArrayView bytes, qint32 codePage)
{
    return isLead(static_cast<quint8>(bytes.front()), codePage) ? 2 : 1;
}

} // namespace

qint32 rtfCodePageOfCharset(qint32 charset)
{
    const auto *const found =
        std::find_if(std::begin(charsets), std::end(charsets),
                     [charset](const Charset &each) { return each.charset == charset; });
    return found == std::end(charsets) ? 0 : found->codePage;
}

bool isRtfCodePage(qint32 codePage)
{
    return codePage == utf8Page || pairPage(codePage) || rtfUpperHalf(codePage);
}

bool RtfBytes::lacksTrail(qint32 codePage) const
{
    if (!pairPage(codePage))
        return false;
    qsizetype at = 0;
    while (at < m_bytes.size())
        at += pairLength(QByteArrayView(m_bytes).sliced(at), codePage);
    return at > m_bytes.size();
}

QStringView RtfBytes::take(qint32 codePage)
{
    m_text.resize(0);
    if (codePage == utf8Page)
        m_text = utf8Text(m_bytes);
    else if (pairPage(codePage))
        decodePairs(codePage);
    else
        decodeSingle(rtfUpperHalf(isRtfCodePage(codePage) ? codePage : westernPage));
    m_bytes.resize(0);
    return m_text;
}

void RtfBytes::decodeSingle(const char16_t *upperHalf)
{
    for (const char each : std::as_const(m_bytes)) {
        const auto byte = static_cast<quint8>(each);
        if (byte < 0x80)
            m_text.append(QChar(ushort{byte}));
        else
            m_text.append(QChar(upperHalf[byte - 0x80]));
    }
}

void RtfBytes::decodePairs(qint32 codePage)
{
    openDecoder(codePage);
    QByteArrayView rest = m_bytes;
    while (!rest.isEmpty()) {
        const qsizetype length = std::min(pairLength(rest, codePage), rest.size());
        m_text.append(QChar(decodePair(rest.first(length))));
        rest = rest.sliced(length);
    }
}

// Decoders answer with a control character or nothing where there is no character.
char16_t RtfBytes::decodePair(QByteArrayView bytes)
{
    const auto first = static_cast<quint8>(bytes.front());
    if (bytes.size() == 1 && first < 0x80)
        return first;
    if (bytes.size() == 1 && m_decoderPage == macJapanesePage && macJapaneseSingle(first))
        return macJapaneseSingle(first);
    if (!m_decoder.isValid())
        return QChar::ReplacementCharacter;
    m_decoder.resetState();
    const QString text = m_decoder.decode(bytes);
    return text.size() == 1 && text.front() >= u'\x80' ? text.front().unicode()
                                                       : char16_t(QChar::ReplacementCharacter);
}

void RtfBytes::openDecoder(qint32 codePage)
{
    if (m_decoderPage == codePage)
        return;
    m_decoderPage = codePage;
    m_decoder = QStringDecoder(pairPage(codePage)->decoder);
}

} // namespace ORVTListview
