#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringDecoder>

namespace ORVTListview {

// The code page of a font's character set; 0: that of the document.
qint32 rtfCodePageOfCharset(qint32 charset);

// The 128 characters of the bytes from 0x80 in a page of one byte a character;
// null for any other page.
const char16_t *rtfUpperHalf(qint32 codePage);

// True for 437, 850, 852, 866, 874, 932, 936, 949, 950, 1250 to 1258, 10000, 10001
// and 65001.
bool isRtfCodePage(qint32 codePage);

// Puts the bytes of a document (\'xx) together to characters. Bytes below 0x80
// are ASCII in every page. What stands for no character gives U+FFFD, and so do
// those of two bytes where Qt's decoders do not know the page. A page that is not
// known counts as 1252.
class RtfBytes
{
public:
    bool isEmpty() const { return m_bytes.isEmpty(); }
    void add(quint8 byte) { m_bytes.append(static_cast<char>(byte)); }

    // True when the last byte is the first half of a character.
    bool lacksTrail(qint32 codePage) const;

    // The characters of the bytes so far, which are then forgotten. Valid until the
    // next call.
    QStringView take(qint32 codePage);

private:
    void decodeSingle(const char16_t *upperHalf);
    void decodePairs(qint32 codePage);
    char16_t decodePair(QByteArrayView bytes);
    void openDecoder(qint32 codePage);

    QByteArray m_bytes;
    QString m_text;
    QStringDecoder m_decoder;
    qint32 m_decoderPage = 0;
};

} // namespace ORVTListview
