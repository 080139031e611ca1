#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/TextProvider.h>

#include <functional>
#include <memory>

namespace ORVTListview {

// The translated texts of one user-interface thread, as last fetched from the
// provider in force.
// Why it is so: docs/decisions/texts.md.
class ORVT_HOUSE_EXPORT TextTable
{
public:
    using Clock = std::function<QDateTime()>;

    TextTable();
    ~TextTable();
    Q_DISABLE_COPY_MOVE(TextTable) // the part of a thread

    // Null goes back to the provider that has no texts. The next refresh fetches.
    void setProvider(TextProvider *provider);

    // Fetches the texts if there was no fetch yet or the provider's texts changed
    // after it. Does not throw: a failing provider leaves an empty table, and the
    // next refresh tries again.
    void refresh();

    // The translation, or the text exactly as given, outer blanks included.
    QString localise(const QString &text) const;

    // None when the provider has none or fails.
    DisplayFontSettings displayFont();

    // When the texts were last fetched; invalid before the first fetch.
    QDateTime loadTime() const { return m_loadTime; }

    // What tells the present time; for tests.
    void setClock(const Clock &clock);

private:
    TextProvider &provider();
    void fetchIfChanged();
    void forget();

    Clock m_clock;
    HostReference<TextProvider> m_provider;
    std::unique_ptr<TextProvider> m_english; // made on first use
    bool m_isHostProvider = false;
    TextCollection m_texts;
    QDateTime m_loadTime;
};

// What every text that is shown passes through, with the table of the calling
// thread. The text is the English one as it stands in LibraryTexts.cpp. A text
// shown in pieces is localised without its outer blanks, which the caller adds.
ORVT_HOUSE_EXPORT QString Localise(const QString &text);

} // namespace ORVTListview
