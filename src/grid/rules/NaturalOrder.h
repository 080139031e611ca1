#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace ORVTListview {

// How much of a text is a number that it begins with, decimals included; 0 for none. What
// has letters or digits right behind it is the beginning of a name, as "2ndFan" or "3.4.5".
qsizetype lengthOfNumber(QStringView text);

// A text as it is sorted, made once so that it is compared often. Numbers come first, by
// their value, whatever unit stands behind them; then texts, in which digits that follow one
// another count as a number ("Fan2" before "Fan10"); what is empty comes last. Letter case
// decides only between texts that are the same but for it. The same in every country.
class NaturalKey
{
public:
    explicit NaturalKey(const QString &text);

    bool isEmpty() const { return m_kind == Empty; }

    // Below zero, zero or above, as the first comes before, with or after the second.
    static int compared(const NaturalKey &first, const NaturalKey &second);

    // Whether they say the same: "21.50" and "21.5", "on" and "On".
    static bool isSame(const NaturalKey &first, const NaturalKey &second);

private:
    enum Kind { Number, Text, Empty };

    static int comparedMeanings(const NaturalKey &first, const NaturalKey &second);

    Kind m_kind = Empty;
    double m_number = 0;
    QString m_folded; // behind the number, or all of it
    QString m_text;
};

} // namespace ORVTListview
