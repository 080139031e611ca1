#include "shared/compression/Compression.h"

#include "base/Windows1252.h"
#include "shared/compression/SlicedCompressor.h"

#include <zlib.h>

#include <algorithm>
#include <new>

namespace ORVTListview::ModZlib {

using namespace Qt::StringLiterals;

namespace {

// No byte of a deflate stream stands for more than this many.
constexpr qint64 greatestRatio = 1032;

const Bytef *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const Bytef *>(bytes.constData());
}

Bytef *bytesOf(QByteArray &bytes)
{
    return reinterpret_cast<Bytef *>(bytes.data());
}

QString compressed(const QString &text)
{
    SlicedCompressor compressor(text.size());
    if (!compressor.add(text))
        throw Error(InvalidCall, u"CompressString"_s,
                    u"The text holds a character that the 8-bit code page lacks"_s);
    return compressor.finish();
}

// A number beyond the bound reads as the bound plus one.
qint64 announcedLength(QStringView text)
{
    qint64 length = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            break;
        length = std::min<qint64>(length * 10 + (digit.unicode() - u'0'), maximumLength + 1);
    }
    return length;
}

// The length is counted as it is written without leading zeros.
QByteArray streamOf(QStringView text, qint64 length)
{
    const QStringView stream = text.mid(QString::number(length).size() + 1);
    const auto isNoByte = [](QChar character) { return character.unicode() > 0xFF; };
    if (std::any_of(stream.begin(), stream.end(), isNoByte))
        throw uncompressError(Z_DATA_ERROR);
    return stream.toLatin1();
}

QByteArray inflated(const QByteArray &stream, qint64 length)
{
    // zlib calls a stream corrupt, not too long, when it is given no room at all.
    const qint64 greatest = greatestRatio * stream.size() + 1;
    QByteArray bytes(std::clamp<qint64>(length, 1, greatest), Qt::Uninitialized);
    auto size = static_cast<uLongf>(bytes.size());
    const int code =
        ::uncompress(bytesOf(bytes), &size, bytesOf(stream), static_cast<uLong>(stream.size()));
    if (code != Z_OK)
        throw uncompressError(code);
    if (qint64(size) > length)
        throw uncompressError(Z_BUF_ERROR);
    bytes.truncate(qsizetype(size));
    return bytes;
}

QString uncompressed(const QString &text)
{
    const qint64 length = announcedLength(text);
    if (length > maximumLength)
        throw uncompressError(Z_MEM_ERROR);
    const QByteArray bytes = inflated(streamOf(text, length), length);
    QString result = fromWindows1252(bytes);
    result.resize(length, u' ');
    return result;
}

} // namespace

bool canCompress(QStringView text)
{
    return text.size() <= maximumLength && toWindows1252(text);
}

QString CompressString(const QString &text)
{
    try {
        return compressed(text);
    } catch (const std::bad_alloc &) {
        throw compressError(Z_MEM_ERROR);
    }
}

QString UncompressString(const QString &text)
{
    try {
        return uncompressed(text);
    } catch (const std::bad_alloc &) {
        throw uncompressError(Z_MEM_ERROR);
    }
}

} // namespace ORVTListview::ModZlib
