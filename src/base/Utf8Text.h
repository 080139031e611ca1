#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringDecoder>

namespace ORVTListview {

// A text that stands within another. QString::fromUtf8() takes it for a whole one and
// loses its first character where that is a byte order mark.
inline QString utf8Text(QByteArrayView bytes)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decode(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    return decode(bytes);
}

} // namespace ORVTListview
