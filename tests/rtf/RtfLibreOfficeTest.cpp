// What is written opens in LibreOffice with the same text and formats.

#include "rtf/LibreOffice.h"
#include "rtf/RtfDump.h"
#include "rtf/RtfRandom.h"

#include "rtf/RtfWriter.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

const RtfFormat base{.fontName = u"Courier New"_s, .halfPoints = 20};

class RtfInLibreOffice : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!LibreOffice::isInstalled())
            GTEST_SKIP() << "soffice is not installed";
    }

    LibreOffice office;
};

QString program()
{
    RtfWriter writer(base);
    writer.text(u"REM  20\u00b0C\u00a0\u20ac {a} \\b \U0001F600\u2028?", {.colour = 0x008000});
    writer.lineEnd();
    writer.text(u"\tIF ", {.colour = 0x123456, .bold = true});
    writer.text(u"( ", {});
    writer.text(u"Temp1 ", {.fontName = u"Arial"_s, .halfPoints = 17, .colour = 0x0000FF});
    writer.text(u">= ", {.backColour = 0x00FFFF, .italic = true});
    writer.text(u"20 )", {.underline = true, .strike = true});
    writer.lineEnd();
    writer.lineEnd();
    writer.text(u" 1", {});
    writer.lineEnd();
    return writer.finish();
}

TEST_F(RtfInLibreOffice, showsTheText)
{
    const QString text = office.convert({program()}, u"txt:Text:UTF8"_s).first();
    EXPECT_EQ(text, u"REM  20\u00b0C\u00a0\u20ac {a} \\b \U0001F600\u2028?\n"
                    "\tIF ( Temp1 >= 20 )\n"
                    "\n"
                    " 1\n"
                    "\n"_s);
}

TEST_F(RtfInLibreOffice, showsTheFormats)
{
    const QString document = office.convert({program()}, u"fodt"_s).first();
    EXPECT_EQ(dumpOfFlatDocument(document), dump(program()));
}

// Texts without what cannot stand in the XML that the program writes.
QString randomDocument(quint32 seed)
{
    RtfRandom random(seed);
    RtfFormat whole = random.format();
    RtfWriter writer(base);
    for (const RtfPiece &piece : random.pieces()) {
        if (piece.isLineEnd) {
            writer.lineEnd();
            continue;
        }
        QString text = piece.text;
        text.removeIf(
            [](QChar c) { return c != u'\t' && (c < u' ' || c.isSurrogate() || c > u'\ufffd'); });
        whole = piece.format;
        whole.fontName = u"Arial"_s;
        whole.halfPoints += whole.halfPoints == 0 ? 20 : 0;
        writer.text(text, whole);
    }
    return writer.finish();
}

TEST_F(RtfInLibreOffice, showsRandomTextsAndFormats)
{
    QStringList documents;
    for (const unsigned seed : randomSeeds(60)) {
        const QString document = randomDocument(seed);
        if (dump(document).contains(u'"')) // of empty lines alone one is lost there
            documents += document;
    }
    const QStringList shown = office.convert(documents, u"fodt"_s);
    for (qsizetype i = 0; i < documents.size(); ++i)
        EXPECT_EQ(dumpOfFlatDocument(shown[i]), dump(documents[i])) << documents[i].toStdString();
}

} // namespace
} // namespace ORVTListview::Testing
