#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>

namespace ORVTListview {

// The name that all links of a file's name end at, whether a file is there or
// not; the name itself where links lead in a circle.
ORVT_HOUSE_EXPORT QString behindLinks(const QString &fileName);

// Whether two names stand for one file, through links and folders that are seen at
// two places; the folder must be there, the file need not.
ORVT_HOUSE_EXPORT bool isOneFile(const QString &one, const QString &other);

} // namespace ORVTListview
