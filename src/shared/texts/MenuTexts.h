#pragma once

#include "base/HouseExport.h"

#include <QtCore/QStringList>

namespace ORVTListview {

// The captions of one menu in the thread's language, each with its access key. The
// English ones may wish for a key by an "&", which counts while they are shown.
ORVT_HOUSE_EXPORT QStringList menuTexts(const QStringList &english);

} // namespace ORVTListview
