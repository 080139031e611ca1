#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ORVTListview {

enum class TextEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

// By the mark that the bytes begin with; without one UTF-8 if they can be it, else
// Windows-1252.
TextEncoding guessedEncoding(const QByteArray &bytes);

// Without the mark. What is not of the encoding becomes the replacement character.
QString decodedText(const QByteArray &bytes, TextEncoding encoding);

// That of comma, semicolon and tab which divides the first rows most evenly.
QChar guessedSeparator(const QString &text);

// The cells of a text with such separators, as RFC 4180 has them, whatever its line ends.
// Rows are as long as they are; empty lines are none.
QList<QStringList> separatedCells(const QString &text, QChar separator);

} // namespace ORVTListview
