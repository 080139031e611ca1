#pragma once

#include "base/HouseExport.h"
#include "shared/points/DisplayNames.h"

#include <QtCore/QList>

#include <array>

namespace ORVTListview {

// Which page of the project tree shows which category. Pages count from 0.
//
// The nodes of a tree are told apart by their tags: deviceTag, 0 to 12 for the
// category of that type, pageTag and up for pages. Hosts rely on it.
namespace PageArrangement {

constexpr qint16 highestPage = 999;
constexpr qint32 deviceTag = -1;
constexpr qint32 pageTag = highestType + 1; // of page 0
constexpr qint32 namedPages = 5;            // pages from there on have no caption

// The page of each type.
using PageNumbers = std::array<qint16, highestType + 1>;

// A category as it stands in a tree that is saved.
struct Place
{
    QString key;
    qint32 page = 0;

    friend bool operator==(const Place &, const Place &) = default;
};

// English, to be localised; empty for a page without a name.
ORVT_HOUSE_EXPORT QString pageCaption(qint32 page);
ORVT_HOUSE_EXPORT QString pageKey(qint32 page);

// The page that a stored text stands for: 0 for one that is absent, no number,
// negative or above highestPage.
qint16 storedPage(const QString &text);

// One record for each page up to the highest; the types of a page ascend.
QList<Pages> arranged(const PageNumbers &pages);

// Reads the arrangement from the settings, as of one moment.
ORVT_HOUSE_EXPORT QList<Pages> load();

// Saves the places in one step. Categories that are not among them keep theirs, and
// so do those beyond highestPage, which would be read back as page 0.
ORVT_HOUSE_EXPORT void save(const QList<Place> &places);

} // namespace PageArrangement
} // namespace ORVTListview
