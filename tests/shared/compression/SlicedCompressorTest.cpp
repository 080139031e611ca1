#include "shared/compression/SlicedCompressor.h"

#include "base/Windows1252.h"
#include "shared/compression/Compression.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <zlib.h>

#include <random>

using namespace ORVTListview;
using namespace ORVTListview::ModZlib;
using namespace Qt::StringLiterals;

namespace {

// Program text and noise by turns, so that matches, literals and stored blocks
// all come up.
QString mixedText(qsizetype length, std::mt19937 &random)
{
    QString text;
    while (text.size() < length) {
        if (random() % 2 == 0) {
            text += u"IF TEMP%1 > %2 THEN FAN = ON\r\n"_s.arg(random() % 50).arg(random() % 9);
            continue;
        }
        for (auto left = random() % 400; left > 0; --left)
            text += fromWindows1252(QByteArray(1, char(random())));
    }
    return text.first(length);
}

// What zlib makes of the whole text at once.
QString compressedAtOnce(const QString &text)
{
    const QByteArray bytes = *toWindows1252(text);
    auto length = compressBound(uLong(bytes.size()));
    QByteArray stream(qsizetype(length), Qt::Uninitialized);
    EXPECT_EQ(compress(reinterpret_cast<Bytef *>(stream.data()), &length,
                       reinterpret_cast<const Bytef *>(bytes.constData()), uLong(bytes.size())),
              Z_OK);
    return QString::number(text.size()) + u':' +
           QString::fromLatin1(stream.first(qsizetype(length)));
}

QString compressedInSlices(const QString &text, qsizetype longest, std::mt19937 &random)
{
    SlicedCompressor compressor(text.size());
    for (qsizetype start = 0; start < text.size();) {
        const auto wanted = qsizetype(random() % quint64(longest)) + 1;
        const QStringView slice = QStringView(text).mid(start, wanted);
        EXPECT_TRUE(compressor.add(slice));
        start += slice.size();
    }
    return compressor.finish();
}

} // namespace

TEST(SlicedCompressor, SameAsInOneShotWhereverTheTextIsCut)
{
    const unsigned seed = randomSeed(4711);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (const qsizetype length : {0, 1, 2, 3, 50, 261, 262, 263, 5000, 32768, 65536, 300000}) {
        const QString text = mixedText(length, random);
        const QString oneShot = compressedAtOnce(text);
        ASSERT_EQ(CompressString(text), oneShot) << length;
        for (const qsizetype longest : {1, 7, 258, 4096, 65536, 1000000})
            ASSERT_EQ(compressedInSlices(text, longest, random), oneShot)
                << length << ' ' << longest;
    }
}

TEST(SlicedCompressor, NoiseFitsTheRoom)
{
    std::mt19937 random(randomSeed(99));
    for (qsizetype length = 0; length < 300; ++length) {
        QByteArray noise;
        for (qsizetype i = 0; i < length; ++i)
            noise += char(random());
        const QString text = fromWindows1252(noise);
        ASSERT_EQ(compressedInSlices(text, 10, random), compressedAtOnce(text));
    }
}

TEST(SlicedCompressor, EmptySliceChangesNothing)
{
    SlicedCompressor compressor(5);
    EXPECT_TRUE(compressor.add(QStringView()));
    EXPECT_TRUE(compressor.add(u"hello"));
    EXPECT_TRUE(compressor.add(QStringView()));
    EXPECT_EQ(compressor.finish(), compressedAtOnce(u"hello"_s));
}

TEST(SlicedCompressor, RefusesWhatTheCodePageLacks)
{
    SlicedCompressor compressor(10);
    EXPECT_TRUE(compressor.add(u"hello"));
    EXPECT_FALSE(compressor.add(u"20 kΩ"));
}

TEST(SlicedCompressor, RefusesALengthBeyondTheBound)
{
    const auto error = raisedBy([] { SlicedCompressor compressor(maximumLength + 1); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), compressError(-4).Number());
}
