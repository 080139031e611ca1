#pragma once

#include "shared/compression/CompressedText.h"

#include <QtCore/QString>

namespace ORVTListview::ModZlib {

// A compressed text is the length of the text in UTF-16 units in decimal digits,
// a colon, and the zlib stream of the text's bytes in Windows-1252. Each byte of
// the stream is the character of the same number, 0 to 255: this part never
// passes through the code page.

// Whether CompressString takes this text: not too long, and all of it in the code
// page.
bool canCompress(QStringView text);

// Raises Error: compressError() of zlib's return code, or InvalidCall when the
// code page lacks a character of the text. Nothing is replaced by a similar
// character, so what succeeds comes back unchanged.
QString CompressString(const QString &text);

// The length is read up to the first character that is no digit; without digits
// it is 0. A length greater than the stream's yields spaces at the end, a smaller
// one fails. Memory is taken by what the stream can hold, and by the length only
// once the stream has proved sound. Raises Error: uncompressError() of zlib's
// return code.
QString UncompressString(const QString &text);

} // namespace ORVTListview::ModZlib
