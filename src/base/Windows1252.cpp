#include "base/Windows1252.h"

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

constexpr char16_t firstOwn = 0x80;
constexpr char16_t pastOwn = 0xA0;

// The bytes 80 to 9F. All others are the Unicode character of the same number.
constexpr std::array<char16_t, pastOwn - firstOwn> ownCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr int noByte = -1;

int byteOf(char16_t character)
{
    if (character < firstOwn || (character >= pastOwn && character <= 0xFF))
        return character;
    const auto own = std::find(ownCharacters.begin(), ownCharacters.end(), character);
    return own == ownCharacters.end() ? noByte : firstOwn + int(own - ownCharacters.begin());
}

} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        const char16_t number = static_cast<uchar>(byte);
        const bool isOwn = number >= firstOwn && number < pastOwn;
        return QChar(isOwn ? ownCharacters[number - firstOwn] : number);
    });
    return text;
}

std::optional<QByteArray> toWindows1252(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *out = bytes.data();
    for (const QChar character : text) {
        const int byte = byteOf(character.unicode());
        if (byte == noByte)
            return std::nullopt;
        *out++ = static_cast<char>(byte);
    }
    return bytes;
}

} // namespace ORVTListview
