#pragma once

#include "base/HouseExport.h"

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ORVTListview {

// A list of words held as one text in which every word stands between two bars:
// "|IF|ELSE|". A word is in the list when "|word|" occurs in that text, without
// regard to case, so a word that itself holds bars can span several entries.
class ORVT_HOUSE_EXPORT BarList
{
public:
    explicit BarList(const QString &text);

    const QString &text() const { return m_text; }

    // The non-empty pieces between the bars, in order.
    const QStringList &words() const { return m_words; }

    bool contains(QStringView word) const;

private:
    QString m_text;
    QStringList m_words;
    QSet<QString> m_folded;
};

} // namespace ORVTListview
