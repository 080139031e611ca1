#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ORVTListview {

// The known words that hold what is typed, letter case ignored.
class ORVT_HOUSE_EXPORT WordMatches
{
public:
    WordMatches() = default;
    explicit WordMatches(const QStringList &words);

    // The places of the words that begin so, then of the others that hold it, each in
    // their order. All for an empty text.
    QList<int> find(const QString &typed) const;

private:
    QStringList m_folded;
};

// Where the first such letters stand in a word that holds them, in characters from 0;
// none for a word without them.
struct MatchedLetters
{
    int start = 0;
    int length = 0;

    friend bool operator==(const MatchedLetters &, const MatchedLetters &) = default;
};
ORVT_HOUSE_EXPORT MatchedLetters matchedLetters(const QString &word, const QString &typed);

} // namespace ORVTListview
