#include "colour/SevenBitRtf.h"

namespace ORVTListview {

QByteArray sevenBitRtf(QStringView rtf)
{
    QByteArray result;
    result.reserve(rtf.size());
    for (const QChar c : rtf) {
        if (c.unicode() < 0x80)
            result.append(static_cast<char>(c.unicode()));
        else
            result.append("\\u" + QByteArray::number(static_cast<qint16>(c.unicode())) + '?');
    }
    return result;
}

} // namespace ORVTListview
