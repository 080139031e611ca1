#include "project/TextFile.h"

#include "project/ProjectError.h"

#include <QtCore/QFile>

#include <array>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

[[noreturn]] void failToRead(const QString &name, const QString &reason)
{
    throw Error(FileNotReadable, u"readFile"_s, u"%1: %2"_s.arg(name, reason));
}

// No byte of a character of several bytes looks like a line end, so every line
// stands for itself.
qsizetype firstInvalidLine(QByteArrayView bytes)
{
    qsizetype line = 1;
    qsizetype start = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        if (c != '\r' && c != '\n')
            continue;
        if (!QUtf8StringView(bytes.sliced(start, i - start)).isValidUtf8())
            return line;
        if (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n')
            ++i;
        start = i + 1;
        ++line;
    }
    return line;
}

QString withCrLf(const QString &text)
{
    QString result = text;
    result.replace("\r\n"_L1, "\n"_L1);
    result.replace(u'\r', u'\n');
    result.replace("\n"_L1, "\r\n"_L1);
    return result;
}

} // namespace

QByteArray readFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        failToRead(fileName, file.errorString());
    return readDevice(file, fileName);
}

QByteArray readDevice(QIODevice &device, const QString &name)
{
    // readAll() keeps quiet about a failure.
    QByteArray bytes;
    std::array<char, 65536> block;
    while (true) {
        const qint64 count = device.read(block.data(), block.size());
        if (count < 0)
            failToRead(name, device.errorString());
        if (count == 0)
            return bytes;
        bytes.append(block.data(), count);
    }
}

QString decodeProgram(const QByteArray &bytes, const QString &name)
{
    if (!QUtf8StringView(bytes).isValidUtf8())
        throw Error(TextNotUtf8, u"decodeProgram"_s,
                    u"%1: line %2 is not valid UTF-8"_s.arg(name).arg(firstInvalidLine(bytes)));
    return withCrLf(QString::fromUtf8(bytes)); // drops the mark
}

} // namespace ORVTListview
