#include "editor/rules/language/BarList.h"

#include "base/TextRules.h"

namespace ORVTListview {

BarList::BarList(const QString &text)
    : m_text(text)
    , m_words(text.split(u'|', Qt::SkipEmptyParts))
{
    m_folded.reserve(m_words.size());
    for (const QString &word : m_words)
        m_folded.insert(foldedCase(word));
}

bool BarList::contains(QStringView word) const
{
    const bool isEntry = !word.isEmpty() && !word.contains(u'|');
    if (isEntry)
        return m_folded.contains(foldedCase(word));
    return foldedCase(m_text).contains(u'|' + foldedCase(word) + u'|');
}

} // namespace ORVTListview
