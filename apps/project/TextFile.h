#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QString>

namespace ORVTListview {

// The whole file. Raises FileNotReadable.
QByteArray readFile(const QString &fileName);

// The rest of an open device; name stands for it in the error.
QByteArray readDevice(QIODevice &device, const QString &name);

// The text of a program: UTF-8 with or without a byte order mark, which is
// dropped. Lines may end in CR LF, LF or CR; the result has CR LF. A line end
// after the last line stays. Raises TextNotUtf8, naming the line.
QString decodeProgram(const QByteArray &bytes, const QString &name);

} // namespace ORVTListview
