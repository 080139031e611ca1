#include "base/Windows1252.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QByteArray everyByte()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

} // namespace

TEST(Windows1252, EveryByteHasACharacterOfItsOwnAndComesBack)
{
    const QByteArray bytes = everyByte();
    const QString text = fromWindows1252(bytes);
    ASSERT_EQ(text.size(), 256);
    for (qsizetype i = 0; i < text.size(); ++i)
        EXPECT_EQ(text.indexOf(text[i]), i);
    EXPECT_EQ(toWindows1252(text), bytes);
}

TEST(Windows1252, KeepsTheNumbersOutsideItsOwnRange)
{
    const QString text = fromWindows1252(everyByte());
    for (qsizetype i = 0; i < 256; ++i) {
        if (i < 0x80 || i >= 0xA0) {
            EXPECT_EQ(text[i].unicode(), i);
        }
    }
}

TEST(Windows1252, UndefinedBytesAreTheControlCharactersOfTheirNumber)
{
    for (const char16_t number : {u'\x81', u'\x8D', u'\x8F', u'\x90', u'\x9D'}) {
        const QByteArray single(1, static_cast<char>(number));
        EXPECT_EQ(fromWindows1252(single), QString(QChar(number)));
        EXPECT_EQ(toWindows1252(QString(QChar(number))), single);
    }
}

TEST(Windows1252, KnowsItsOwnCharacters)
{
    EXPECT_EQ(fromWindows1252("\x80\x85\x8A\x8E\x91\x94\x96\x99\x9C\x9F"), u"€…ŠŽ‘”–™œŸ"_s);
    EXPECT_EQ(fromWindows1252("20 \xB0\x43"), u"20 °C"_s);
}

TEST(Windows1252, LacksAllOthers)
{
    const QString all = fromWindows1252(everyByte());
    for (int number = 0; number <= 0xFFFF; ++number) {
        const QString text(QChar{static_cast<char16_t>(number)});
        EXPECT_EQ(toWindows1252(text).has_value(), all.contains(text)) << number;
    }
}

TEST(Windows1252, OneCharacterThatIsLackingFailsTheText)
{
    EXPECT_EQ(toWindows1252(u"Ω"_s), std::nullopt);
    EXPECT_EQ(toWindows1252(u"Temp = 20 Ω"_s), std::nullopt);
    EXPECT_EQ(toWindows1252(u"Ωmega"_s), std::nullopt);
    EXPECT_EQ(toWindows1252(u"😀"_s), std::nullopt);
    EXPECT_EQ(toWindows1252(QString()), QByteArray());
}
