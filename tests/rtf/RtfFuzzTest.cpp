// Any input gives a defined result: documents damaged at random, tokens thrown
// together at random.

#include "rtf/RtfDump.h"
#include "rtf/RtfRandom.h"

#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

const std::array<QString, 56> tokens = {u"{"_s,
                                        u"}"_s,
                                        u"{"_s,
                                        u"}"_s,
                                        u"\\"_s,
                                        u"\\*"_s,
                                        u"\\'"_s,
                                        u"\\'e4"_s,
                                        u"\\'83"_s,
                                        u"\\'0d"_s,
                                        u"\\'0"_s,
                                        u"\\u"_s,
                                        u"\\u8364"_s,
                                        u"\\u-10179?"_s,
                                        u"\\u10 "_s,
                                        u"\\u99999999"_s,
                                        u"\\uc0 "_s,
                                        u"\\uc9"_s,
                                        u"\\uc-1"_s,
                                        u"\\bin3 "_s,
                                        u"\\bin999999999999"_s,
                                        u"\\bin-1"_s,
                                        u"\\par"_s,
                                        u"\\line "_s,
                                        u"\\tab"_s,
                                        u"\\pict"_s,
                                        u"\\fldinst "_s,
                                        u"\\fldrslt "_s,
                                        u"\\fonttbl"_s,
                                        u"\\colortbl"_s,
                                        u"\\f0 "_s,
                                        u"\\f1"_s,
                                        u"\\f-2147483648"_s,
                                        u"\\fcharset128 "_s,
                                        u"\\fcharset204"_s,
                                        u"\\cpg936"_s,
                                        u"\\ansicpg65001"_s,
                                        u"\\deff1"_s,
                                        u"\\red255"_s,
                                        u"\\green-99999"_s,
                                        u"\\blue9999999999 "_s,
                                        u";"_s,
                                        u"\\cf1 "_s,
                                        u"\\highlight99"_s,
                                        u"\\fs99999999"_s,
                                        u"\\plain"_s,
                                        u"\\v"_s,
                                        u"\\v0 "_s,
                                        u"\\b"_s,
                                        u"text "_s,
                                        u"\r\n"_s,
                                        u"-5"_s,
                                        u"\0"_s,
                                        u"\u4e2d"_s,
                                        u"\xd83d"_s,
                                        u"\\unknownunknownunknownunknownunknown "_s};

QString soup(RtfRandom &random)
{
    QString rtf = u"{\\rtf1"_s;
    for (int i = random.below(60); i > 0; --i)
        rtf += random.oneOf(tokens);
    return rtf;
}

QString document(RtfRandom &random)
{
    RtfWriter writer(random.format());
    for (const RtfPiece &piece : random.pieces()) {
        if (piece.isLineEnd)
            writer.lineEnd();
        else
            writer.text(piece.text, piece.format);
    }
    return writer.finish();
}

void damage(QString &rtf, RtfRandom &random)
{
    for (int i = random.below(4); i >= 0 && !rtf.isEmpty(); --i) {
        const int at = random.below(static_cast<int>(rtf.size()));
        switch (random.below(4)) {
        case 0:
            rtf.remove(at, 1 + random.below(8));
            break;
        case 1:
            rtf[at] = QChar(static_cast<char16_t>(random.below(0x80)));
            break;
        case 2:
            rtf.insert(at, random.oneOf(tokens));
            break;
        default:
            rtf.insert(at, rtf.mid(random.below(static_cast<int>(rtf.size())), random.below(40)));
        }
    }
}

// Checks each piece and counts them.
class Inspector final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &format) override
    {
        ++calls;
        characters += text.size();
        const auto isForbidden = [](QChar c) { return c == u'\r' || c == u'\n' || c == u'\0'; };
        if (text.isEmpty() || std::any_of(text.cbegin(), text.cend(), isForbidden))
            isSound = false;
        isSound = isSound && isColour(format.colour) && isColour(format.backColour);
        isSound = isSound && format.halfPoints >= 0 && format.halfPoints <= 3276;
        isSound = isSound && format.fontName.size() <= 255;
    }
    void lineEnd() override { ++calls; }

    bool isSound = true;
    qsizetype calls = 0;
    qsizetype characters = 0;

private:
    static bool isColour(qint32 colour)
    {
        return colour == RtfFormat::automatic || (colour >= 0 && colour <= 0xFFFFFF);
    }
};

void inspect(const QString &rtf, quint32 seed)
{
    Inspector inspector;
    readRtf(rtf, inspector);
    ASSERT_TRUE(inspector.isSound) << "seed " << seed << '\n' << rtf.toStdString();
    ASSERT_LE(inspector.calls, rtf.size()) << "seed " << seed;
    ASSERT_LE(inspector.characters, rtf.size()) << "seed " << seed;
}

TEST(RtfFuzz, readsTokensInAnyOrder)
{
    for (const unsigned seed : randomSeeds(10'000)) {
        RtfRandom random(seed);
        ASSERT_NO_FATAL_FAILURE(inspect(soup(random), seed));
    }
}

TEST(RtfFuzz, readsDamagedDocuments)
{
    for (const unsigned seed : randomSeeds(10'000)) {
        RtfRandom random(seed);
        QString rtf = document(random);
        damage(rtf, random);
        ASSERT_NO_FATAL_FAILURE(inspect(rtf, seed));
    }
}

// The last token may be cut in the middle and then mean another character, of two
// units at most, or a line end.
TEST(RtfFuzz, readsADocumentThatIsCutOffAsFarAsItGoes)
{
    for (const unsigned seed : randomSeeds(2000)) {
        RtfRandom random(seed);
        const QString rtf = random.below(2) == 0 ? document(random) : soup(random);
        const int length = random.below(static_cast<int>(rtf.size()) + 1);
        QString text = plainText(QStringView(rtf).first(length));
        text.chop(2);
        ASSERT_TRUE(plainText(rtf).startsWith(text))
            << "seed " << seed << ", cut at " << length << " of\n"
            << rtf.toStdString();
    }
}

} // namespace
} // namespace ORVTListview::Testing
