#include "shared/compression/SlicedCompressor.h"

#include "base/Windows1252.h"
#include "shared/compression/CompressedText.h"

#include <zlib.h>

#include <optional>
#include <utility>

namespace ORVTListview::ModZlib {

struct SlicedCompressor::Stream
{
    explicit Stream(qsizetype length);
    ~Stream() { deflateEnd(&zlib); }
    Q_DISABLE_COPY_MOVE(Stream) // zlib keeps its address

    z_stream zlib{};
    QByteArray room;
};

SlicedCompressor::Stream::Stream(qsizetype length)
    : room(compressedCapacity(length), Qt::Uninitialized)
{
    if (const int code = deflateInit(&zlib, Z_DEFAULT_COMPRESSION); code != Z_OK)
        throw compressError(code);
    zlib.next_out = reinterpret_cast<Bytef *>(room.data());
    zlib.avail_out = static_cast<uInt>(room.size());
}

SlicedCompressor::SlicedCompressor(qsizetype length)
    : m_length(length)
{
    if (length > maximumLength)
        throw compressError(Z_MEM_ERROR);
    m_stream = std::make_unique<Stream>(length);
}

SlicedCompressor::~SlicedCompressor() = default;

bool SlicedCompressor::add(QStringView slice)
{
    std::optional<QByteArray> bytes = toWindows1252(slice);
    if (bytes && !bytes->isEmpty()) // zlib calls an empty slice an error
        deflate(std::move(*bytes), Z_NO_FLUSH, Z_OK);
    return bytes.has_value();
}

QString SlicedCompressor::finish()
{
    deflate(QByteArray(), Z_FINISH, Z_STREAM_END);
    const auto length = static_cast<qsizetype>(m_stream->zlib.total_out);
    return QString::number(m_length) + u':' +
           QLatin1StringView(QByteArrayView(m_stream->room).first(length));
}

void SlicedCompressor::deflate(QByteArray bytes, int flush, int expected)
{
    z_stream &zlib = m_stream->zlib;
    zlib.next_in = reinterpret_cast<Bytef *>(bytes.data());
    zlib.avail_in = static_cast<uInt>(bytes.size());
    const int code = ::deflate(&zlib, flush);
    const bool isRoomFull = zlib.avail_in > 0 || (code == Z_OK && expected != Z_OK);
    if (isRoomFull)
        throw compressError(Z_BUF_ERROR);
    if (code != expected)
        throw compressError(code);
}

} // namespace ORVTListview::ModZlib
