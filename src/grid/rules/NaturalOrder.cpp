#include "grid/rules/NaturalOrder.h"

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

// Digits as a number of any length: without zeros before them the longer one is larger.
int comparedDigits(QStringView first, QStringView second)
{
    while (first.size() > 1 && first.front() == u'0')
        first = first.mid(1);
    while (second.size() > 1 && second.front() == u'0')
        second = second.mid(1);
    if (first.size() != second.size())
        return first.size() < second.size() ? -1 : 1;
    return first.compare(second);
}

int comparedTexts(QStringView first, QStringView second)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < first.size() && j < second.size()) {
        if (isDigit(first.at(i)) && isDigit(second.at(j))) {
            const qsizetype firstEnd = endOfDigits(first, i);
            const qsizetype secondEnd = endOfDigits(second, j);
            if (const int order =
                    comparedDigits(first.sliced(i, firstEnd - i), second.sliced(j, secondEnd - j)))
                return order;
            i = firstEnd;
            j = secondEnd;
        } else if (first.at(i) != second.at(j)) {
            return first.at(i) < second.at(j) ? -1 : 1;
        } else {
            ++i;
            ++j;
        }
    }
    const qsizetype left = first.size() - i;
    const qsizetype right = second.size() - j;
    return left == right ? 0 : left < right ? -1 : 1;
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
    const bool isName = end < text.size() &&
                        (text.at(end).isLetter() || text.at(end) == u'.' || text.at(end) == u'_');
    return isName ? 0 : end;
}

NaturalKey::NaturalKey(const QString &text)
{
    const QStringView seen = QStringView(text).trimmed();
    if (seen.isEmpty())
        return;
    const qsizetype number = lengthOfNumber(seen);
    m_kind = number > 0 ? Number : Text;
    if (number > 0)
        m_number = seen.first(number).toDouble();
    m_folded = seen.sliced(number).toString().toCaseFolded();
    m_text = text;
}

int NaturalKey::comparedMeanings(const NaturalKey &first, const NaturalKey &second)
{
    if (first.m_kind != second.m_kind)
        return first.m_kind < second.m_kind ? -1 : 1;
    if (first.m_number < second.m_number || first.m_number > second.m_number)
        return first.m_number < second.m_number ? -1 : 1;
    return comparedTexts(first.m_folded, second.m_folded);
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
