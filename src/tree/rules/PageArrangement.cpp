#include "tree/rules/PageArrangement.h"

#include "base/ShortInteger.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/SettingsStore.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace ORVTListview::PageArrangement {

using namespace Qt::StringLiterals;

namespace {

const QString applicationName = u"Quillbox"_s;

} // namespace

QString pageCaption(qint32 page)
{
    static const std::array<QString, namedPages> captions{
        u"Basic Programming"_s, u"Internal Points"_s,        u"Built-In Functions"_s,
        u"Network Variables"_s, u"Hardware Configuration"_s,
    };
    const bool hasName = page >= 0 && page < namedPages;
    return hasName ? captions[static_cast<std::size_t>(page)] : QString();
}

QString pageKey(qint32 page)
{
    // The most of building a tree of many pages would be putting a text together.
    std::array<char, 16> key{'P', 'a', 'g', 'e'};
    const auto *end = std::to_chars(key.data() + 4, key.data() + key.size(), page).ptr;
    return QString::fromLatin1(key.data(), end - key.data());
}

qint16 storedPage(const QString &text)
{
    try {
        const qint16 page = toShortInteger(text, u"PageArrangement"_s);
        return page >= 0 && page <= highestPage ? page : qint16{0};
    } catch (const Error &) {
        return 0;
    }
}

QList<Pages> arranged(const PageNumbers &pages)
{
    QList<Pages> settings(*std::max_element(pages.cbegin(), pages.cend()) + 1);
    for (qint32 type = lowestType; type <= highestType; ++type) {
        Pages &page = settings[pages[static_cast<std::size_t>(type)]];
        page.Index.append(static_cast<LwType>(type));
        page.Key.append(displayName(type));
    }
    return settings;
}

QList<Pages> load()
{
    const SettingsTransaction reading;
    PageNumbers pages{};
    for (qint32 type = lowestType; type <= highestType; ++type)
        pages[static_cast<std::size_t>(type)] =
            storedPage(ReadSetting(applicationName, displayName(type)));
    return arranged(pages);
}

void save(const QList<Place> &places)
{
    SettingsTransaction writing;
    for (const Place &place : places) {
        if (place.page <= highestPage)
            WriteSetting(applicationName, place.key, QString::number(place.page));
    }
    writing.commit();
}

} // namespace ORVTListview::PageArrangement
