#include "project/TextFile.h"

#include "base/FileReplacement.h"
#include "base/TextRules.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <array>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

[[noreturn]] void failToRead(const QString &name, const QString &reason)
{
    throw Error(FileNotReadable, u"readFile"_s, ProjectTexts::about(name, reason));
}

// Where a file is another's alone while it takes its place, that is for a moment.
bool openToRead(QFile &file)
{
    constexpr int attempts = 25;
    for (int i = 1; !file.open(QIODevice::ReadOnly); ++i) {
        const QFileInfo info(file);
        if (i == attempts || !info.isFile() || !info.isReadable())
            return false;
        QThread::msleep(20);
    }
    return true;
}

QString reasonOf(const FileReplacement &failed)
{
    switch (failed.fault()) {
    case FileReplacement::Fault::NotAFile:
        return ProjectTexts::tr("is not a file");
    case FileReplacement::Fault::ReadOnly:
        return ProjectTexts::tr("may only be read");
    case FileReplacement::Fault::FolderClosed:
        return ProjectTexts::tr("its folder takes no new file (%1)").arg(failed.systemText());
    case FileReplacement::Fault::None:
    case FileReplacement::Fault::System:
        break;
    }
    return failed.systemText();
}

struct LineEndCounts
{
    qsizetype lf = 0;
    qsizetype crLf = 0;
    qsizetype cr = 0;
};

LineEndCounts countLineEnds(QByteArrayView bytes)
{
    LineEndCounts counts;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const bool isPair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
        if (isPair) {
            ++counts.crLf;
            ++i;
        } else if (bytes[i] == '\r') {
            ++counts.cr;
        } else if (bytes[i] == '\n') {
            ++counts.lf;
        }
    }
    return counts;
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

// The line that holds half of a surrogate pair.
qsizetype firstBrokenLine(const QString &program)
{
    qsizetype line = 1;
    for (const QStringView text : QStringView(program).tokenize(u"\r\n")) {
        if (!text.isValidUtf16())
            break;
        ++line;
    }
    return line;
}

QLatin1StringView lineEndText(LineEnd lineEnd)
{
    switch (lineEnd) {
    case LineEnd::CrLf:
        return "\r\n"_L1;
    case LineEnd::Cr:
        return "\r"_L1;
    case LineEnd::Lf:
        break;
    }
    return "\n"_L1;
}

} // namespace

QByteArray readFile(const QString &fileName)
{
    QFile file(fileName);
    if (!openToRead(file))
        failToRead(fileName, file.errorString());
    return readDevice(file, fileName);
}

QByteArray readDevice(QIODevice &device, const QString &name)
{
    // readAll() keeps quiet about a failure.
    QByteArray bytes;
    std::array<char, 65536> block{};
    while (true) {
        const qint64 count = device.read(block.data(), block.size());
        if (count < 0)
            failToRead(name, device.errorString());
        if (count == 0)
            return bytes;
        bytes.append(block.data(), count);
    }
}

void writeFile(const QString &fileName, const QByteArray &bytes)
{
    FileReplacement file(fileName);
    if (!file.write(bytes) || !file.commit())
        throw Error(FileNotWritable, u"writeFile"_s, ProjectTexts::about(fileName, reasonOf(file)));
}

ProgramFormat programFormat(QByteArrayView bytes)
{
    const LineEndCounts counts = countLineEnds(bytes);
    ProgramFormat format;
    format.hasByteOrderMark = bytes.startsWith(byteOrderMark);
    if (counts.crLf > counts.lf && counts.crLf >= counts.cr)
        format.lineEnd = LineEnd::CrLf;
    else if (counts.cr > counts.lf)
        format.lineEnd = LineEnd::Cr;
    return format;
}

QString decodeProgram(const QByteArray &bytes, const QString &name)
{
    if (!QUtf8StringView(bytes).isValidUtf8())
        throw Error(TextNotUtf8, u"decodeProgram"_s,
                    ProjectTexts::tr("%1: line %2 is not valid UTF-8")
                        .arg(name, QString::number(firstInvalidLine(bytes))));
    return withCrLf(QString::fromUtf8(bytes)); // drops the mark
}

QByteArray encodeProgram(const QString &program, ProgramFormat format, const QString &name)
{
    if (!program.isValidUtf16())
        throw Error(TextNotUtf8, u"encodeProgram"_s,
                    ProjectTexts::tr("%1: line %2 holds half a character")
                        .arg(name, QString::number(firstBrokenLine(program))));
    QString text = program;
    if (format.lineEnd != LineEnd::CrLf)
        text.replace("\r\n"_L1, lineEndText(format.lineEnd));
    const QByteArray bytes = text.toUtf8();
    // A program's own first character would be taken for a mark.
    const bool needsMark = format.hasByteOrderMark || bytes.startsWith(byteOrderMark);
    return needsMark ? byteOrderMark.toByteArray() + bytes : bytes;
}

} // namespace ORVTListview
