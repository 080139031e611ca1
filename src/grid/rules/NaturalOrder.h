#pragma once

#include <QtCore/QString>

namespace ORVTListview {

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
