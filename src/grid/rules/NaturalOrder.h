#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QtGlobal>

namespace ORVTListview {

// How much of a text is a number that it begins with, decimals included; 0 for none. Up to four
// letters right behind it are its unit, as in "1.3kW"; more of them, and digits, make it the
// beginning of a name, as "2ndFan" or "3.4.5".
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

    enum Kind { Number, Text, Empty };

    // What decides between most keys without a look at their texts: the one with the lower
    // rank comes first; those of one rank are to be compared. Of texts it tells from a place
    // on before which all that are ranked are alike.
    struct Rank
    {
        Kind kind;
        quint64 value;

        friend bool operator==(const Rank &, const Rank &) = default;
        friend bool operator<(const Rank &first, const Rank &second)
        {
            return first.kind != second.kind ? first.kind < second.kind
                                             : first.value < second.value;
        }
    };
    Rank rank(qsizetype from) const;

    // How far two texts are alike, as rank counts it.
    qsizetype sharedBegin(const NaturalKey &other) const;
    Kind kind() const { return m_kind; }

private:
    static int comparedMeanings(const NaturalKey &first, const NaturalKey &second);

    Kind m_kind = Empty;
    double m_number = 0;
    QString m_units; // what is behind the number, or all of it, made to be compared
    QString m_text;
};

} // namespace ORVTListview
