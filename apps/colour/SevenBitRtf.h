#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringView>

namespace ORVTListview {

// A document as a file has it, in ASCII: every other UTF-16 unit as \uN?, N being
// a signed 16-bit number.
QByteArray sevenBitRtf(QStringView rtf);

} // namespace ORVTListview
