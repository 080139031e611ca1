#include "rtf/RtfTokenizer.h"

#include <QtCore/QLatin1StringView>

#include <algorithm>
#include <limits>

namespace ORVTListview {
namespace {

constexpr bool isLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

constexpr bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

constexpr bool isIgnored(char16_t c)
{
    return c == u'\r' || c == u'\n' || c == u'\0';
}

constexpr bool endsText(char16_t c)
{
    return c == u'\\' || c == u'{' || c == u'}' || isIgnored(c);
}

constexpr int hexValue(char16_t c)
{
    if (isDigit(c))
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

} // namespace

RtfTokenizer::RtfTokenizer(QStringView rtf)
    : m_next(rtf.utf16())
    , m_end(m_next + rtf.size())
{
}

RtfToken RtfTokenizer::next()
{
    while (!atEnd() && isIgnored(*m_next))
        ++m_next;
    if (atEnd())
        return {};
    switch (*m_next) {
    case u'{':
        ++m_next;
        return {.kind = RtfToken::GroupStart};
    case u'}':
        ++m_next;
        return {.kind = RtfToken::GroupEnd};
    case u'\\':
        ++m_next;
        return control();
    default:
        return text();
    }
}

RtfToken RtfTokenizer::text()
{
    const char16_t *start = m_next;
    while (!atEnd() && !endsText(*m_next))
        ++m_next;
    return {.kind = RtfToken::Text, .text = QStringView(start, m_next)};
}

// Behind the backslash. One that ends the input is no token.
RtfToken RtfTokenizer::control()
{
    if (atEnd())
        return {};
    if (isLetter(*m_next))
        return word();
    const char16_t symbol = *m_next++;
    if (symbol == u'\'')
        return byte();
    return {.kind = RtfToken::Symbol, .symbol = symbol};
}

RtfToken RtfTokenizer::word()
{
    const char16_t *start = m_next;
    while (!atEnd() && isLetter(*m_next))
        ++m_next;
    RtfToken token{.kind = RtfToken::Word};
    token.text = QStringView(start, std::min<qsizetype>(m_next - start, maximumNameLength));
    readNumber(token);
    if (!atEnd() && *m_next == u' ')
        ++m_next;
    if (token.text == QLatin1StringView("bin"))
        skip(token.number);
    return token;
}

void RtfTokenizer::readNumber(RtfToken &token)
{
    const bool negative = !atEnd() && *m_next == u'-';
    const char16_t *digit = m_next + (negative ? 1 : 0);
    if (digit == m_end || !isDigit(*digit))
        return;
    constexpr qint64 limit = std::numeric_limits<qint32>::max();
    qint64 value = 0;
    for (; digit != m_end && isDigit(*digit); ++digit)
        value = std::min(value * 10 + (*digit - u'0'), limit);
    token.hasNumber = true;
    token.number = static_cast<qint32>(negative ? -value : value);
    m_next = digit;
}

void RtfTokenizer::skip(qint32 units)
{
    m_next += std::clamp<qsizetype>(units, 0, m_end - m_next);
}

// Without two hexadecimal digits \' says nothing, and what follows is read as usual.
RtfToken RtfTokenizer::byte()
{
    const int high = m_end - m_next < 2 ? -1 : hexValue(m_next[0]);
    const int low = high < 0 ? -1 : hexValue(m_next[1]);
    if (low < 0)
        return {.kind = RtfToken::Symbol, .symbol = u'\''};
    m_next += 2;
    return {.kind = RtfToken::Byte, .symbol = static_cast<char16_t>(high * 16 + low)};
}

} // namespace ORVTListview
