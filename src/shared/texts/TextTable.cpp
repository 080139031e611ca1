#include "shared/texts/TextTable.h"

#include "base/ThreadState.h"
#include "shared/texts/TextRoutine.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

class EnglishTexts final : public TextProvider
{
public:
    QDateTime ChangeTime() override { return {}; }
    TextCollection GetTexts(const QString &) override { return {}; }
};

bool isLater(const QDateTime &time, const QDateTime &reference)
{
    return time.isValid() && time > reference;
}

} // namespace

TextTable::TextTable()
    : m_clock(&QDateTime::currentDateTimeUtc)
{
}

TextTable::~TextTable() = default;

void TextTable::setProvider(TextProvider *provider)
{
    m_provider = provider;
    m_isHostProvider = provider != nullptr;
    m_loadTime = {};
}

void TextTable::refresh()
{
    if (!runTextRoutine(TextRoutine::lookup, [this] { fetchIfChanged(); }))
        forget();
}

QString TextTable::localise(const QString &text) const
{
    const auto found = m_texts.constFind(textKey(text));
    return found == m_texts.cend() ? text : *found;
}

DisplayFontSettings TextTable::displayFont()
{
    DisplayFontSettings font;
    runTextRoutine(TextRoutine::lookup, [&] { font = provider().DisplayFont(); });
    return font;
}

void TextTable::setClock(const Clock &clock)
{
    m_clock = clock;
}

TextProvider &TextTable::provider()
{
    if (m_isHostProvider && !m_provider)
        setProvider(nullptr); // destroyed by the host
    if (m_isHostProvider)
        return *m_provider.get();
    if (!m_english)
        m_english = std::make_unique<EnglishTexts>();
    return *m_english;
}

void TextTable::fetchIfChanged()
{
    TextProvider &source = provider();
    const QDateTime changed = source.ChangeTime();
    if (m_loadTime.isValid() && !isLater(changed, m_loadTime))
        return;
    // The time is taken first, so that a change during the fetch counts as later.
    const QDateTime now = m_clock();
    m_texts = source.GetTexts(u"ORVTListview"_s);
    m_loadTime = now;
}

void TextTable::forget()
{
    m_texts.clear();
    m_loadTime = {};
}

void setTextProvider(TextProvider *Provider)
{
    auto &table = threadPart<TextTable>();
    table.setProvider(Provider);
    table.refresh();
}

QString Localise(const QString &text)
{
    return threadPart<TextTable>().localise(text);
}

} // namespace ORVTListview
