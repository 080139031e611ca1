#include "shared/compression/Compression.h"

#include "base/Windows1252.h"
#include "support/MemoryLimit.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace ORVTListview::ModZlib;
using namespace Qt::StringLiterals;

namespace {

constexpr qint32 outOfMemory = -2147221500;
constexpr qint32 outOfRoom = -2147221499;
constexpr qint32 corrupt = -2147221501;

struct ErrorRow
{
    int code;
    qint32 number;
    QString description;
};

void expectError(const Error &error, const QString &routine, const ErrorRow &row)
{
    EXPECT_EQ(error.Number(), row.number) << row.code;
    EXPECT_EQ(error.Source(), routine);
    EXPECT_EQ(error.Description(), row.description);
}

// 0 when it succeeds.
qint32 uncompressNumber(const QString &text)
{
    const auto error = raisedBy([&] { UncompressString(text); });
    return error ? error->Number() : 0;
}

QString everyCharacter()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return fromWindows1252(bytes);
}

QString streamIn(const QString &compressed)
{
    return compressed.mid(compressed.indexOf(u':') + 1);
}

// "hello" as other programs compress it.
const QString helloStream = QString::fromLatin1("\x78\x9c\xcb\x48\xcd\xc9\xc9\x07\x00\x06\x2c\x02"
                                                "\x15",
                                                13);

} // namespace

TEST(Compression, RoomIsRoundedToTheEvenNeighbour)
{
    EXPECT_EQ(compressedCapacity(0), 13);
    EXPECT_EQ(compressedCapacity(1), 14);                    // 14.01
    EXPECT_EQ(compressedCapacity(49), 62);                   // 62.49
    EXPECT_EQ(compressedCapacity(50), 64);                   // 63.5
    EXPECT_EQ(compressedCapacity(51), 65);                   // 64.51
    EXPECT_EQ(compressedCapacity(150), 164);                 // 164.5
    EXPECT_EQ(compressedCapacity(250), 266);                 // 265.5
    EXPECT_EQ(compressedCapacity(350), 366);                 // 366.5
    EXPECT_EQ(compressedCapacity(1000), 1023);               // exactly
    EXPECT_EQ(compressedCapacity(maximumLength), 135559918); // 135559918.28
}

TEST(Compression, ErrorsOfCompressing)
{
    const QString unknown = u"Unknown error during compress operation"_s;
    const ErrorRow rows[] = {
        {-4, outOfMemory, u"Insufficient memory to compress string"_s},
        {-5, outOfRoom, u"Insufficient space in output buffer to compress string"_s},
        {-1, -2147221503, unknown},
        {-2, -2147221502, unknown},
        {-3, -2147221501, unknown},
        {-6, -2147221498, unknown},
        {1, -2147221503, unknown},
        {2, -2147221502, unknown},
    };
    for (const ErrorRow &row : rows)
        expectError(compressError(row.code), u"CompressString"_s, row);
}

TEST(Compression, ErrorsOfUncompressing)
{
    const QString unknown = u"Unknown error during uncompress operation"_s;
    const ErrorRow rows[] = {
        {-4, outOfMemory, u"Insufficient memory to uncompress string"_s},
        {-5, outOfRoom, u"Insufficient space in output buffer to uncompress string"_s},
        {-3, corrupt, u"Cannot uncompress corrupt data"_s},
        {-1, -2147221503, unknown},
        {-2, -2147221502, unknown},
        {-6, -2147221498, unknown},
        {1, -2147221503, unknown},
        {2, -2147221502, unknown},
    };
    for (const ErrorRow &row : rows)
        expectError(uncompressError(row.code), u"UncompressString"_s, row);
}

TEST(Compression, FormIsLengthColonAndStream)
{
    EXPECT_EQ(CompressString(u"hello"_s), u"5:"_s + helloStream);
    EXPECT_EQ(UncompressString(u"5:"_s + helloStream), u"hello"_s);
}

TEST(Compression, EmptyTextIsTheStreamOfNoData)
{
    const QString noData = QString::fromLatin1("\x78\x9c\x03\x00\x00\x00\x00\x01", 8);
    EXPECT_EQ(CompressString(QString()), u"0:"_s + noData);
    EXPECT_EQ(UncompressString(u"0:"_s + noData), QString());
}

TEST(Compression, EveryCharacterOfTheCodePageComesBack)
{
    const QString text = everyCharacter();
    EXPECT_TRUE(canCompress(text));
    EXPECT_EQ(UncompressString(CompressString(text)), text);
    for (const QChar character : text) {
        EXPECT_EQ(UncompressString(CompressString(QString(character))), QString(character));
        const QString many(5000, character);
        EXPECT_EQ(UncompressString(CompressString(many)), many);
    }
}

TEST(Compression, AnyTextOfTheCodePageComesBack)
{
    const unsigned seed = randomSeed(20240611);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const QString alphabet = everyCharacter();
    for (int round = 0; round < 2000; ++round) {
        const auto letters = int(random() % 256) + 1;
        QString text;
        for (auto left = random() % 3000; left > 0; --left)
            text += alphabet[qsizetype(random() % unsigned(letters))];
        const QString compressed = CompressString(text);
        ASSERT_EQ(UncompressString(compressed), text);
        ASSERT_TRUE(compressed.startsWith(QString::number(text.size()) + u':'));
        ASSERT_LE(streamIn(compressed).size(), compressedCapacity(text.size()));
        for (const QChar byte : compressed)
            ASSERT_LE(byte.unicode(), 0xFF);
    }
}

TEST(Compression, TextOutsideTheCodePageIsRefusedWhole)
{
    for (const QString &text : {u"Ω"_s, u"Temp = 20 Ω"_s, u"😀"_s, QString(QChar(0x80))}) {
        EXPECT_FALSE(canCompress(text));
        const auto error = raisedBy([&] { CompressString(text); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Number(), InvalidCall);
        EXPECT_EQ(error->Source(), u"CompressString"_s);
        EXPECT_EQ(error->Description(),
                  u"The text holds a character that the 8-bit code page lacks"_s);
    }
}

TEST(Compression, TextBeyondTheBoundIsRefused)
{
    const QString text(maximumLength + 1, Qt::Uninitialized);
    EXPECT_FALSE(canCompress(text));
    const auto error = raisedBy([&] { CompressString(text); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), outOfMemory);
}

TEST(Compression, LengthTooSmallForTheStreamFails)
{
    const QString text = u"IF TEMP1 > 20 THEN FAN = ON"_s.repeated(20);
    const QString stream = streamIn(CompressString(text));
    for (qsizetype length = 0; length < text.size(); ++length)
        ASSERT_EQ(uncompressNumber(QString::number(length) + u':' + stream), outOfRoom) << length;
    EXPECT_EQ(uncompressNumber(u"0:"_s + streamIn(CompressString(u"x"_s))), outOfRoom);
}

TEST(Compression, LengthTooGreatForTheStreamLeavesSpaces)
{
    for (const qsizetype length : {6, 7, 100, 13416, 13417, 5'000'000}) {
        const QString text = UncompressString(QString::number(length) + u':' + helloStream);
        ASSERT_EQ(text.size(), length);
        EXPECT_TRUE(text.startsWith(u"hello "_s));
        EXPECT_EQ(text.trimmed(), u"hello"_s);
        EXPECT_EQ(text.count(u' '), length - 5);
    }
    const QString noText = streamIn(CompressString(QString()));
    EXPECT_EQ(UncompressString(u"3:"_s + noText), u"   "_s);
}

TEST(Compression, StreamOfTheGreatestRatioComesBack)
{
    const QString text(20'000'000, u'x');
    const QString compressed = CompressString(text);
    EXPECT_GT(text.size(), compressed.size() * 1000);
    EXPECT_TRUE(UncompressString(compressed) == text);
}

TEST(Compression, DigitsEndAtTheFirstOtherCharacter)
{
    // The character behind the digits is passed over, whatever it is.
    EXPECT_EQ(UncompressString(u"5x"_s + helloStream), u"hello"_s);
    EXPECT_EQ(uncompressNumber(u"5.0:"_s + helloStream), corrupt);
    EXPECT_EQ(uncompressNumber(u"5e2:"_s + helloStream), corrupt);
}

TEST(Compression, NoDigitsAreTheLengthNought)
{
    const QString noData = streamIn(CompressString(QString()));
    EXPECT_EQ(UncompressString(u"::"_s + noData), QString());
    EXPECT_EQ(UncompressString(u"-:"_s + noData), QString());
    EXPECT_EQ(UncompressString(u" :"_s + noData), QString());
    for (const QString &text :
         {QString(), u":"_s, u"x"_s, u"no length at all"_s, u"-5:"_s, u" 5:"_s, u"٥:"_s})
        EXPECT_EQ(uncompressNumber(text), corrupt) << text.toStdString();
    EXPECT_EQ(uncompressNumber(u"-:"_s + helloStream), outOfRoom);
}

TEST(Compression, LengthIsMeasuredWithoutLeadingZeros)
{
    // Of "05:" only "5" and a colon are passed over: the stream begins with ":".
    EXPECT_EQ(uncompressNumber(u"05:"_s + helloStream), corrupt);
}

TEST(Compression, LengthBeyondTheBoundFailsLikeALackOfMemory)
{
    for (const QString &length : {u"134217729"_s, u"2147483647"_s, u"2147483648"_s, u"4294967301"_s,
                                  u"18446744073709551621"_s, u"9"_s.repeated(1000)})
        EXPECT_EQ(uncompressNumber(length + u':' + helloStream), outOfMemory)
            << length.toStdString();
}

TEST(Compression, FlippedBitNeverYieldsAnotherText)
{
    const QString text = u"REM fan speed\r\nFAN = LIMIT(TEMP1, 0, 100)"_s;
    const QString compressed = CompressString(text);
    int harmless = 0; // between the last block and the checksum some bits are unused
    for (qsizetype place = compressed.indexOf(u':') + 1; place < compressed.size(); ++place) {
        for (int bit = 0; bit < 8; ++bit) {
            QString damaged = compressed;
            damaged[place] = QChar(char16_t(compressed[place].unicode() ^ (1 << bit)));
            const qint32 number = uncompressNumber(damaged);
            harmless += number == 0 ? 1 : 0;
            if (number == 0)
                EXPECT_EQ(UncompressString(damaged), text) << place << ' ' << bit;
            else
                EXPECT_TRUE(number == corrupt || number == outOfRoom) << place << ' ' << bit;
        }
    }
    EXPECT_LT(harmless, 8);
}

TEST(Compression, CutStreamIsFound)
{
    const QString text = CompressString(u"IF TEMP1 > 20 THEN FAN = ON"_s.repeated(20));
    for (qsizetype length = 0; length < text.size(); ++length) {
        const qint32 number = uncompressNumber(text.first(length));
        EXPECT_TRUE(number == corrupt || number == outOfRoom) << length;
    }
}

TEST(Compression, CharacterThatIsNoByteIsCorrupt)
{
    EXPECT_EQ(uncompressNumber(u"5:"_s + helloStream + u'Ā'), corrupt);
    QString damaged = u"5:"_s + helloStream;
    damaged[4] = QChar(u'\u01CB'); // its low byte is the right one
    EXPECT_EQ(uncompressNumber(damaged), corrupt);
}

TEST(Compression, AnythingAtAllIsATextOrAnError)
{
    const unsigned seed = randomSeed(7);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 20000; ++round) {
        QString text = CompressString(QString::number(random()).repeated(int(random() % 40)));
        for (auto left = random() % 4; left > 0; --left)
            text[qsizetype(random() % unsigned(text.size()))] = QChar(char16_t(random() % 300));
        const auto error = raisedBy([&] { UncompressString(text); });
        if (error) {
            EXPECT_EQ(error->Source(), u"UncompressString"_s);
        }
    }
}

#ifdef ORVT_HAS_MEMORY_LIMIT

namespace {

// Ends the process: 0 when the number is that, with this much memory left.
[[noreturn]] void uncompressWithin(rlim_t bytes, const QString &text, qint32 expected)
{
    limitMemory(bytes);
    std::exit(uncompressNumber(text) == expected ? 0 : 1);
}

constexpr rlim_t little = 32 * 1024 * 1024;

} // namespace

TEST(CompressionDeathTest, LackOfMemoryIsAnError)
{
    EXPECT_EXIT(uncompressWithin(little, u"134217728:"_s + helloStream, outOfMemory),
                testing::ExitedWithCode(0), "");
}

TEST(CompressionDeathTest, DamagedStreamTakesNoMemoryByItsLength)
{
    QString damaged = u"134217728:"_s + helloStream;
    damaged[14] = QChar(char16_t(damaged[14].unicode() ^ 1));
    EXPECT_EXIT(uncompressWithin(little, damaged, corrupt), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(uncompressWithin(little, u"134217728:"_s, corrupt), testing::ExitedWithCode(0), "");
}

#endif
