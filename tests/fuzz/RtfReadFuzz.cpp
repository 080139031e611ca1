// Any document: what the reader hands out is sound and no more than the document, and
// what is written of it reads back the same.

#include "fuzz/FuzzBytes.h"

#include "rtf/RtfDump.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;
using namespace ORVTListview::Testing;

namespace {

bool isColour(Colour colour)
{
    return colour == RtfFormat::automatic || (colour >= 0 && colour <= 0xFFFFFF);
}

class Inspector final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &format) override
    {
        ++calls;
        characters += text.size();
        demand(!text.isEmpty(), "no piece is empty");
        demand(std::none_of(text.begin(), text.end(),
                            [](QChar c) { return c == u'\r' || c == u'\n' || c == u'\0'; }),
               "text holds neither line ends nor NUL");
        demand(isColour(format.colour) && isColour(format.backColour), "colours have 24 bits");
        demand(format.halfPoints >= 0 && format.halfPoints <= 3276, "sizes are bounded");
        demand(format.fontName.size() <= 255, "font names are bounded");
    }
    void lineEnd() override { ++calls; }

    qsizetype calls = 0;
    qsizetype characters = 0;
};

QString rewritten(const QString &rtf)
{
    RtfWriter writer({});
    readRtf(rtf, writer);
    return writer.finish();
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
    const QString rtf = textOf(data, size);
    Inspector inspector;
    readRtf(rtf, inspector);
    demand(inspector.calls <= rtf.size(), "no more pieces than characters");
    demand(inspector.characters <= rtf.size(), "no more text than document");

    const QString once = rewritten(rtf);
    demand(mergedDump(once) == mergedDump(rtf), "what is written reads back the same");
    demand(rewritten(once) == once, "the second writing is the first");
    return 0;
}
