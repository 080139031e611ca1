#pragma once

#include "support/RandomSeed.h"

#include <QtCore/QString>

#include <random>
#include <string>

namespace ORVTListview {

// Texts of everything that formats trip over, from a seed to print on failure.
class RandomText
{
public:
    explicit RandomText(unsigned seed = randomSeed())
        : m_seed(seed)
        , m_random(seed)
    {
    }

    std::string seed() const { return "seed " + std::to_string(m_seed); }

    // 0 to limit - 1.
    int number(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    // Of at most that many UTF-16 units, broken pairs and NUL included.
    QString text(int longest)
    {
        QString text;
        for (int units = number(longest + 1); units > 0; --units)
            text += unit();
        return text;
    }

private:
    QChar unit()
    {
        static const QString awkward =
            QStringLiteral("  \"\"\\\\=;#[]\r\n\t/%unr0'aZ") +
            QString::fromUtf16(u"\u00e9\u20ac\u2028\u0085\u00a0\ufeff\ufffe\ufffd\u200f") +
            QChar(0) + QChar(1) + QChar(0x7f) + QChar(0xd83d) + QChar(0xde00) + QChar(0xdfff);
        if (number(8) == 0)
            return QChar(static_cast<char16_t>(number(0x10000)));
        return awkward.at(number(static_cast<int>(awkward.size())));
    }

    unsigned m_seed;
    std::mt19937 m_random;
};

} // namespace ORVTListview
