#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace ORVTListview::Fuzzing {

// Ends the program when a promise is broken, which is a finding.
inline void demand(bool isKept, const char *promise)
{
    if (isKept)
        return;
    std::fprintf(stderr, "A promise is broken: %s\n", promise);
    std::abort();
}

// The text of bytes: each is the character of its number, but for the eight highest,
// which make a UTF-16 unit, any there is, of the two bytes behind them.
inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    constexpr std::uint8_t wide = 0xF8;
    QString text;
    text.reserve(static_cast<qsizetype>(size));
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] >= wide && i + 2 < size) {
            text += QChar(static_cast<char16_t>(data[i + 1] << 8 | data[i + 2]));
            i += 2;
        } else {
            text += QChar(static_cast<char16_t>(data[i]));
        }
    }
    return text;
}

// What a target decides by: numbers and texts, one after the other from the bytes of
// the input; zero and empty behind their end.
class FuzzBytes
{
public:
    FuzzBytes(const std::uint8_t *data, std::size_t size)
        : m_data(data)
        , m_left(size)
    {
    }

    bool isEmpty() const { return m_left == 0; }

    std::uint8_t byte()
    {
        if (isEmpty())
            return 0;
        --m_left;
        return *m_data++;
    }

    // From 0 to one less than the bound.
    int below(int bound)
    {
        quint32 number = byte();
        for (int reach = 256; reach < bound; reach *= 256) {
            number = number << 8 | byte();
            if (reach > 0x7FFFFF)
                break;
        }
        return static_cast<int>(number % static_cast<quint32>(bound));
    }

    bool coin() { return (byte() & 1) != 0; }

    quint64 number()
    {
        quint64 number = 0;
        for (int i = 0; i < 8; ++i)
            number = number << 8 | byte();
        return number;
    }

    // The next bytes, as many as the first one says.
    QByteArray bytes()
    {
        const std::size_t length = byte();
        return take(length < m_left ? length : m_left);
    }
    QString text() { return textOf(bytes()); }

    QByteArray rest() { return take(m_left); }
    QString restText() { return textOf(rest()); }

private:
    static QString textOf(const QByteArray &bytes)
    {
        return Fuzzing::textOf(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
    }

    QByteArray take(std::size_t length)
    {
        const QByteArray bytes(reinterpret_cast<const char *>(m_data),
                               static_cast<qsizetype>(length));
        m_data += length;
        m_left -= length;
        return bytes;
    }

    const std::uint8_t *m_data;
    std::size_t m_left;
};

} // namespace ORVTListview::Fuzzing

// Each target is a file that defines this; 0 says that the input was taken.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
