#pragma once

#include <ORVTListview/KeyedCollection.h>

#include "base/HouseExport.h"
#include "base/TextSearch.h"

#include <QtCore/QStringList>

namespace ORVTListview {

// Texts in the order of their first use. Texts that differ in letter case only
// count as one, and the first stays as it is.
class ORVT_HOUSE_EXPORT SearchHistory
{
public:
    bool contains(const QString &text) const { return m_texts.Contains(text); }

    // Returns whether the text is new. An empty one never is.
    bool add(const QString &text);

    QStringList texts() const { return m_texts.Keys(); }

private:
    KeyedCollection<QString> m_texts;
};

// What was searched for and what it was replaced by on a thread, in all editors.
// Closing the dialog leaves it, and so does undo.
struct SearchHistories
{
    SearchHistory searched;
    SearchHistory replacements;

    // The last search that the user started, and how; without a text before the first.
    struct Last
    {
        QString text;
        TextSearch how;
    };
    Last last;
};

} // namespace ORVTListview
