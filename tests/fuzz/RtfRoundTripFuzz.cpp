// Any text in any formats: the writer's document reads back the same, and writing what
// was read gives the same bytes.

#include "fuzz/FuzzBytes.h"

#include "rtf/RtfDump.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;
using namespace ORVTListview::Testing;

namespace {

// Of a font name no more than the reader keeps; the writer drops what stands for
// nothing in a font table.
RtfFormat formatFrom(FuzzBytes &bytes)
{
    static const QString names[] = {QString(),
                                    QStringLiteral("Sans"),
                                    QStringLiteral("Mono 2"),
                                    QStringLiteral("{a};"),
                                    QStringLiteral("Gro\u00df\\e"),
                                    QStringLiteral("\u4e2d \U00020000")};
    const int flags = bytes.below(256);
    RtfFormat format;
    format.fontName = names[bytes.below(6)];
    format.bold = (flags & 1) != 0;
    format.italic = (flags & 2) != 0;
    format.underline = (flags & 4) != 0;
    format.strike = (flags & 8) != 0;
    if ((flags & 16) != 0)
        format.halfPoints = 1 + bytes.below(3276);
    if ((flags & 32) != 0)
        format.colour = bytes.below(0x1000000);
    if ((flags & 64) != 0)
        format.backColour = bytes.below(0x1000000);
    return format;
}

RtfFormat filled(RtfFormat format, const RtfFormat &base)
{
    if (format.fontName.isEmpty())
        format.fontName = base.fontName;
    if (format.halfPoints == 0)
        format.halfPoints = base.halfPoints;
    if (format.colour == RtfFormat::automatic)
        format.colour = base.colour;
    if (format.backColour == RtfFormat::automatic)
        format.backColour = base.backColour;
    return format;
}

QString withoutLineEnds(QString text)
{
    text.remove(u'\r');
    text.remove(u'\n');
    return text;
}

QString mergedDump(const QString &rtf)
{
    RtfDump dump;
    RtfMerger merger(dump);
    readRtf(rtf, merger);
    merger.flush();
    return dump.lines();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const RtfFormat base = formatFrom(bytes);
    RtfWriter writer(base);
    RtfDump expected;
    RtfMerger merger(expected);
    RtfFormat format;
    while (!bytes.isEmpty()) {
        const int choice = bytes.below(4);
        if (choice == 0)
            format = formatFrom(bytes);
        if (choice == 1) {
            writer.lineEnd();
            merger.lineEnd();
        } else {
            const QString text = withoutLineEnds(bytes.text());
            writer.text(text, format);
            const QString kept = QString(text).remove(u'\0');
            if (!kept.isEmpty())
                merger.text(kept, filled(format, base));
        }
    }
    merger.flush();

    const QString rtf = writer.finish();
    demand(
        std::all_of(rtf.cbegin(), rtf.cend(),
                    [](QChar c) { return (c >= u' ' && c < u'\x80') || c == u'\r' || c == u'\n'; }),
        "a document has 7-bit characters");
    demand(mergedDump(rtf) == expected.lines(), "what is written reads back the same");
    RtfWriter second(base);
    readRtf(rtf, second);
    demand(second.finish() == rtf, "the second writing is the first");
    return 0;
}
