#include "find/rules/SearchHistory.h"

namespace ORVTListview {

bool SearchHistory::add(const QString &text)
{
    if (text.isEmpty() || contains(text))
        return false;
    m_texts.Add(text, text);
    return true;
}

} // namespace ORVTListview
