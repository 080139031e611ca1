#include "base/Windows1252.h"

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr char16_t firstOwn = 0x80;
constexpr char16_t pastOwn = 0xA0;

// All other characters have the number of their byte.
constexpr std::u16string_view ownCharacters = windows1252UpperHalf.substr(0, pastOwn - firstOwn);

constexpr int noByte = -1;

int byteOf(char16_t character)
{
    if (character < firstOwn || (character >= pastOwn && character <= 0xFF))
        return character;
    const auto own = ownCharacters.find(character);
    return own == std::u16string_view::npos ? noByte : firstOwn + int(own);
}

} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        const char16_t number = static_cast<uchar>(byte);
        return QChar(number < firstOwn ? number : windows1252UpperHalf[number - firstOwn]);
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
