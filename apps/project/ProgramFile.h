#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ORVTListview {

// A program's file as it came. What nobody touched is saved as it was, to the byte: line
// ends, tabs, blanks, a byte order mark, the spelling of words, in whatever encoding.
class ProgramFile
{
public:
    // UTF-8; UTF-16 behind a byte order mark; else Windows-1252, which any bytes are.
    enum class Encoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

    ProgramFile() = default; // an empty one

    explicit ProgramFile(const QByteArray &bytes);

    const QByteArray &bytes() const { return m_bytes; }
    Encoding encoding() const { return m_encoding; }

    // Lines separated by CR LF, without the mark.
    QString text() const;

    // The file of another text. `shown` is what an editor made of text() when it was
    // opened: a line that still is as it was shown comes as it came. Any other has the line
    // end of the one in whose place it stands, or the file's most frequent one. Raises
    // TextNotUtf8 for half a character, TextNotEncodable for one that the encoding lacks;
    // both name the line.
    QByteArray with(const QString &now, const QString &shown, const QString &name) const;

    // The same text in UTF-8, which has all characters.
    ProgramFile inUtf8() const;

private:
    QByteArray encoded(const QString &raw, const QString &name) const;

    QByteArray m_bytes;
    QString m_raw; // with the line ends of the file, without the mark
    Encoding m_encoding = Encoding::Utf8;
    bool m_hasMark = false;
};

} // namespace ORVTListview
