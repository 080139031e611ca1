#pragma once

#include <ORVTListview/Error.h>

#include <QtCore/qglobal.h>

namespace ORVTListview::ModZlib {

// The longest text that is compressed or uncompressed. A length beyond it, in a
// damaged text for instance, fails like a lack of memory; so no text takes more
// than 256 MiB, and about as much again while it is worked on.
// Why it is so: docs/decisions/compression.md.
constexpr qint32 maximumLength = 128 * 1024 * 1024;

// The room that zlib is given to compress a text of this length, in bytes:
// length * 1.01 + 13, a half going to the even neighbour. Never too little.
qint64 compressedCapacity(qint64 length);

// What is raised when zlib returns this code, which is not 0.
Error compressError(int code);
Error uncompressError(int code);

} // namespace ORVTListview::ModZlib
