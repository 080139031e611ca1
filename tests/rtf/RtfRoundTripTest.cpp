// What is written reads back as the same.

#include "rtf/RtfDump.h"
#include "rtf/RtfRandom.h"

#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <string_view>

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
    for (const unsigned seed : randomSeeds(5000)) {
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

// Formats and texts all over what there is, where RtfRandom's are few and likely to
// go wrong.
RtfFormat anyFormat(RtfRandom &random)
{
    const auto anyColour = [&random] {
        return random.below(2) == 0 ? RtfFormat::automatic : random.below(0x1000000);
    };
    const QString names[] = {u"Sans"_s, u"Mono 2"_s, u"{a};"_s, u"Gro\u00df\\e"_s, u"\U00020000"_s};
    return {.fontName = random.below(4) == 0 ? QString() : random.oneOf(names),
            .halfPoints = random.below(3) == 0 ? 0 : 1 + random.below(3276),
            .colour = anyColour(),
            .backColour = anyColour(),
            .bold = random.below(2) == 0,
            .italic = random.below(2) == 0,
            .underline = random.below(2) == 0,
            .strike = random.below(2) == 0};
}

QString anyText(RtfRandom &random)
{
    constexpr std::u16string_view marks = u"\t\t \\{}'*-;?0a\u00a0\u00ad";
    QString text;
    for (int i = random.below(12); i >= 0; --i) {
        switch (random.below(4)) {
        case 0:
            text += QChar::fromUcs4(static_cast<char32_t>(0x10000 + random.below(0x100000)));
            break;
        case 1:
            text += QChar(static_cast<char16_t>(0x20 + random.below(0xFFE0)));
            break;
        default:
            text += QChar(random.oneOf(marks));
        }
    }
    return text;
}

QList<RtfPiece> anyPieces(RtfRandom &random)
{
    QList<RtfPiece> list;
    RtfFormat format = anyFormat(random);
    for (int i = random.below(16); i > 0; --i) {
        if (random.below(3) == 0)
            format = anyFormat(random);
        const bool isEmpty = random.below(10) == 0;
        if (random.below(3) == 0)
            list.append(RtfPiece{.isLineEnd = true});
        else
            list.append(RtfPiece{.text = isEmpty ? QString(QChar(u'\0')) : anyText(random),
                                 .format = format});
    }
    return list;
}

TEST(RtfRoundTrip, keepsAnyTextAndWritesItTheSameAgain)
{
    for (const unsigned seed : randomSeeds(10'000)) {
        RtfRandom random(seed);
        const RtfFormat base = anyFormat(random);
        QList<RtfPiece> pieces = anyPieces(random);
        const QString rtf = written(pieces, base);
        pieces.removeIf([](const RtfPiece &piece) { return piece.text == QChar(u'\0'); });
        ASSERT_EQ(dump(rtf), dumpOf(pieces, base)) << "seed " << seed << '\n' << rtf.toStdString();
        ASSERT_TRUE(isSevenBit(rtf)) << "seed " << seed << '\n' << rtf.toStdString();
        RtfWriter second(base);
        readRtf(rtf, second);
        ASSERT_EQ(second.finish(), rtf) << "seed " << seed;
    }
}

TEST(RtfRoundTrip, writesWhatItReadTheSameAgain)
{
    const auto rewritten = [](const QString &rtf) {
        RtfWriter writer({});
        readRtf(rtf, writer);
        return writer.finish();
    };
    for (const unsigned seed : randomSeeds(500)) {
        RtfRandom random(seed);
        const QString once = rewritten(written(random.pieces(), random.format()));
        ASSERT_EQ(rewritten(once), once) << "seed " << seed;
    }
}

} // namespace
} // namespace ORVTListview::Testing
