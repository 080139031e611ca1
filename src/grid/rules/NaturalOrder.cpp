#include "grid/rules/NaturalOrder.h"

#include <algorithm>
#include <array>
#include <bit>

namespace ORVTListview {
namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype endOfDigits(QStringView text, qsizetype from)
{
    while (from < text.size() && isDigit(text.at(from)))
        ++from;
    return from;
}

// Letter case taken away; texts of ASCII, as most are, without a look at any table.
QString folded(QStringView text)
{
    QString lower = text.toString();
    if (std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'\u0080'; }))
        return lower.toCaseFolded();
    for (QChar &c : lower) {
        if (c >= u'A' && c <= u'Z')
            c = QChar(c.unicode() + ('a' - 'A'));
    }
    return lower;
}

// So that texts compare naturally unit by unit: digits that follow one another stand behind a
// zero, which keeps their place among other letters, and their number, since without zeros
// before them the longer number is larger.
QString unitsOf(QStringView text)
{
    QString lower = folded(text);
    if (std::none_of(lower.cbegin(), lower.cend(), isDigit))
        return lower;
    QString units;
    units.reserve(lower.size() + 8);
    for (qsizetype i = 0; i < lower.size();) {
        const qsizetype end = endOfDigits(lower, i);
        if (end == i) {
            units += lower.at(i++);
            continue;
        }
        while (i + 1 < end && lower.at(i) == u'0')
            ++i;
        units += u'0';
        for (qsizetype left = end - i; left >= 0; left -= 0xFFFF)
            units += QChar(static_cast<char16_t>(std::min<qsizetype>(left, 0xFFFF)));
        units += QStringView(lower).sliced(i, end - i);
        i = end;
    }
    return units;
}

// As whole numbers are, in the same order.
quint64 ordered(double number)
{
    constexpr quint64 sign = quint64(1) << 63;
    const auto bits = std::bit_cast<quint64>(number + 0.0); // for which there are two zeros
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

// Of what lengthOfNumber has measured. Exact as long as both parts of the fraction are; longer
// numbers, which are few, take the toolkit's slow way.
double valueOf(QStringView number)
{
    constexpr std::array tens{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (number.size() > 15)
        return number.toDouble();
    quint64 digits = 0;
    std::size_t decimals = 0;
    bool isBehindPoint = false;
    for (const QChar c : number) {
        if (isDigit(c)) {
            digits = digits * 10 + (c.unicode() - u'0');
            decimals += isBehindPoint ? 1 : 0;
        }
        isBehindPoint = isBehindPoint || c == u'.';
    }
    const double value = static_cast<double>(digits) / tens.at(decimals);
    return number.front() == u'-' ? -value : value;
}

// "kW" or "VDC" right behind digits, but not "ndFan" of "2ndFan".
bool isUnit(QStringView text)
{
    constexpr qsizetype longest = 4;
    qsizetype end = 0;
    while (end < text.size() && text.at(end).isLetter())
        ++end;
    const bool goesOn = end < text.size() &&
                        (isDigit(text.at(end)) || text.at(end) == u'_' || text.at(end) == u'.');
    return end > 0 && end <= longest && !goesOn;
}

} // namespace

qsizetype lengthOfNumber(QStringView text)
{
    const qsizetype sign =
        !text.isEmpty() && (text.front() == u'-' || text.front() == u'+') ? 1 : 0;
    qsizetype end = endOfDigits(text, sign);
    if (end == sign)
        return 0;
    const bool hasDecimals =
        end + 1 < text.size() && text.at(end) == u'.' && isDigit(text.at(end + 1));
    if (hasDecimals)
        end = endOfDigits(text, end + 1);
    if (end == text.size() || isUnit(text.sliced(end)))
        return end;
    const QChar next = text.at(end);
    return next.isLetter() || next == u'.' || next == u'_' ? 0 : end;
}

NaturalKey::NaturalKey(const QString &text)
{
    const QStringView seen = QStringView(text).trimmed();
    if (seen.isEmpty())
        return;
    const qsizetype number = lengthOfNumber(seen);
    m_kind = number > 0 ? Number : Text;
    if (number > 0)
        m_number = valueOf(seen.first(number));
    m_units = unitsOf(seen.sliced(number).trimmed());
    m_text = text;
}

int NaturalKey::comparedMeanings(const NaturalKey &first, const NaturalKey &second)
{
    if (first.m_kind != second.m_kind)
        return first.m_kind < second.m_kind ? -1 : 1;
    if (first.m_number < second.m_number || first.m_number > second.m_number)
        return first.m_number < second.m_number ? -1 : 1;
    return first.m_units.compare(second.m_units);
}

qsizetype NaturalKey::sharedBegin(const NaturalKey &other) const
{
    const auto parting = std::mismatch(m_units.cbegin(), m_units.cend(), other.m_units.cbegin(),
                                       other.m_units.cend());
    return parting.first - m_units.cbegin();
}

NaturalKey::Rank NaturalKey::rank(qsizetype from) const
{
    if (m_kind == Number)
        return {m_kind, ordered(m_number)};
    quint64 units = 0;
    for (qsizetype i = from; i < from + 4; ++i)
        units = units << 16 | (i < m_units.size() ? m_units.at(i).unicode() : 0);
    return {m_kind, units};
}

int NaturalKey::compared(const NaturalKey &first, const NaturalKey &second)
{
    const int order = comparedMeanings(first, second);
    return order != 0 ? order : first.m_text.compare(second.m_text);
}

bool NaturalKey::isSame(const NaturalKey &first, const NaturalKey &second)
{
    return comparedMeanings(first, second) == 0;
}

} // namespace ORVTListview
