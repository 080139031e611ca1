#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QIODevice>
#include <QtCore/QString>

namespace ORVTListview {

inline constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

// The whole file. Raises FileNotReadable.
QByteArray readFile(const QString &fileName);

// The rest of an open device; name stands for it in the error.
QByteArray readDevice(QIODevice &device, const QString &name);

// Puts the bytes in place of the file's, or leaves the file as it was and raises
// FileNotWritable.
void writeFile(const QString &fileName, const QByteArray &bytes);

enum class LineEnd { Lf, CrLf, Cr };

// What the text of a program file does not tell of the file.
struct ProgramFormat
{
    LineEnd lineEnd = LineEnd::Lf;
    bool hasByteOrderMark = false;

    friend bool operator==(const ProgramFormat &, const ProgramFormat &) = default;
};

// The line end is the file's most frequent one, LF when it has none.
ProgramFormat programFormat(QByteArrayView bytes);

// The text of a program: UTF-8 with or without a byte order mark, which is
// dropped. Lines may end in CR LF, LF or CR; the result has CR LF. A line end
// after the last line stays. Raises TextNotUtf8, naming the line.
QString decodeProgram(const QByteArray &bytes, const QString &name);

// The bytes of a program, whose lines are separated by CR LF. Raises TextNotUtf8,
// naming the line, for a text with half a character in it. A text that begins with a byte
// order mark gets another before it.
QByteArray encodeProgram(const QString &program, ProgramFormat format, const QString &name);

} // namespace ORVTListview
