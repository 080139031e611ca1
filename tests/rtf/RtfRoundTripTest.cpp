// What is written reads back as the same.

#include "rtf/RtfDump.h"
#include "rtf/RtfRandom.h"

#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

// What a run looks like once the writer's base has filled what it leaves open.
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

QString dumpOf(const QList<RtfPiece> &pieces, const RtfFormat &base)
{
    RtfDump dump;
    RtfMerger merger(dump);
    for (const RtfPiece &piece : pieces) {
        if (piece.isLineEnd)
            merger.lineEnd();
        else
            merger.text(piece.text, filled(piece.format, base));
    }
    merger.flush();
    return dump.lines();
}

QString written(const QList<RtfPiece> &pieces, const RtfFormat &base)
{
    RtfWriter writer(base);
    for (const RtfPiece &piece : pieces) {
        if (piece.isLineEnd)
            writer.lineEnd();
        else
            writer.text(piece.text, piece.format);
    }
    return writer.finish();
}

bool isSevenBit(const QString &rtf)
{
    return std::all_of(rtf.cbegin(), rtf.cend(), [](QChar c) {
        return (c >= u' ' && c < u'\x80') || c == u'\r' || c == u'\n';
    });
}

TEST(RtfRoundTrip, keepsRandomTextsAndFormats)
{
    for (quint32 seed = 1; seed <= 5000; ++seed) {
        RtfRandom random(seed);
        const RtfFormat base = random.format();
        const QList<RtfPiece> pieces = random.pieces();
        const QString rtf = written(pieces, base);
        ASSERT_EQ(dump(rtf), dumpOf(pieces, base)) << "seed " << seed << '\n' << rtf.toStdString();
        ASSERT_TRUE(isSevenBit(rtf)) << "seed " << seed << '\n' << rtf.toStdString();
    }
}

TEST(RtfRoundTrip, keepsEveryCharacterButNulAndLineEnds)
{
    QString text;
    for (char16_t unit = 1; unit != 0; ++unit) {
        if (unit != u'\r' && unit != u'\n')
            text += QChar(unit);
    }
    EXPECT_EQ(plainText(written({{.text = text}}, {})), text);
}

TEST(RtfRoundTrip, writesWhatItReadTheSameAgain)
{
    const auto rewritten = [](const QString &rtf) {
        RtfWriter writer({});
        readRtf(rtf, writer);
        return writer.finish();
    };
    for (quint32 seed = 1; seed <= 500; ++seed) {
        RtfRandom random(seed);
        const QString once = rewritten(written(random.pieces(), random.format()));
        ASSERT_EQ(rewritten(once), once) << "seed " << seed;
    }
}

} // namespace
} // namespace ORVTListview::Testing
