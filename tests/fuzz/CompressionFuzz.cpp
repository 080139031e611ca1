// Compressed texts, sound and damaged, and texts that are compressed in slices.

#include "fuzz/FuzzBytes.h"

#include "shared/compression/Compression.h"
#include "shared/compression/SlicedCompressor.h"
#include <ORVTListview/Error.h>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;
using namespace ORVTListview::ModZlib;

namespace {

constexpr qint64 longestText = 1 << 20;

// Up to 128 Mi characters are given what they announce, which takes a while.
bool isCostly(const QString &text)
{
    qint64 length = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            break;
        length = qMin<qint64>(length * 10 + (c.unicode() - u'0'), Q_INT64_C(1) << 40);
    }
    return length > longestText && length <= 128 * 1024 * 1024;
}

void checkText(const QString &text, FuzzBytes &cuts)
{
    if (!canCompress(text)) {
        try {
            CompressString(text);
            demand(false, "what cannot be compressed is refused");
        } catch (const Error &error) {
            demand(error.Number() == InvalidCall, "the code page is the reason");
        }
        return;
    }
    const QString compressed = CompressString(text);
    demand(UncompressString(compressed) == text, "what is compressed comes back");
    SlicedCompressor compressor(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = qMin<qsizetype>(1 + cuts.byte(), text.size() - at);
        demand(compressor.add(QStringView(text).sliced(at, length)), "slices are taken");
        at += length;
    }
    demand(compressor.finish() == compressed, "slices give the same bytes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    if (bytes.coin()) {
        const QByteArray cuts = bytes.bytes();
        FuzzBytes cutBytes(reinterpret_cast<const std::uint8_t *>(cuts.constData()),
                           static_cast<std::size_t>(cuts.size()));
        checkText(bytes.restText(), cutBytes);
        return 0;
    }
    const QString compressed = bytes.restText();
    if (isCostly(compressed))
        return 0;
    QString text;
    try {
        text = UncompressString(compressed);
    } catch (const Error &) {
        return 0;
    }
    demand(canCompress(text), "what comes of bytes has bytes");
    demand(UncompressString(CompressString(text)) == text, "and comes back");
    return 0;
}
