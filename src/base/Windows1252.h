#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <optional>

namespace ORVTListview {

// The 8-bit code page Windows-1252, one byte a character. The five bytes that it
// leaves undefined (81, 8D, 8F, 90, 9D) are the control characters of the same
// number, as Windows takes them, so that every byte has a character and back.

ORVT_CORE_EXPORT QString fromWindows1252(QByteArrayView bytes);

// None when the code page lacks one of the characters; nothing is ever replaced
// by a similar one.
ORVT_CORE_EXPORT std::optional<QByteArray> toWindows1252(QStringView text);

} // namespace ORVTListview
