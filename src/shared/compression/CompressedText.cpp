#include "shared/compression/CompressedText.h"

#include <zlib.h>

namespace ORVTListview::ModZlib {

using namespace Qt::StringLiterals;

namespace {

QString description(int code, const QString &act)
{
    switch (code) {
    case Z_MEM_ERROR:
        return u"Insufficient memory to %1 string"_s.arg(act);
    case Z_BUF_ERROR:
        return u"Insufficient space in output buffer to %1 string"_s.arg(act);
    default:
        return u"Unknown error during %1 operation"_s.arg(act);
    }
}

Error errorOf(int code, const QString &routine, const QString &description)
{
    return {ObjectErrorBase + qAbs(code), routine, description};
}

} // namespace

qint64 compressedCapacity(qint64 length)
{
    const qint64 hundredths = length * 101 + 1300;
    const qint64 whole = hundredths / 100;
    const qint64 rest = hundredths % 100;
    const bool isUp = rest > 50 || (rest == 50 && whole % 2 != 0);
    return isUp ? whole + 1 : whole;
}

Error compressError(int code)
{
    return errorOf(code, u"CompressString"_s, description(code, u"compress"_s));
}

Error uncompressError(int code)
{
    return errorOf(code, u"UncompressString"_s,
                   code == Z_DATA_ERROR ? u"Cannot uncompress corrupt data"_s
                                        : description(code, u"uncompress"_s));
}

} // namespace ORVTListview::ModZlib
