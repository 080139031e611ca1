#include "base/FileReplacement.h"

#include "base/FilePlace.h"
#include "base/SystemFiles.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <system_error>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

QString textOf(const std::error_code &failure)
{
    return QString::fromLocal8Bit(failure.message());
}

// Short, so that there is one for the longest name.
QString newNameBeside(const QFileInfo &file)
{
    const QString tail = QString::number(QRandomGenerator::global()->generate(), 36);
    return file.path() + u'/' + file.fileName().left(40) + u'.' + tail;
}

} // namespace

FileReplacement::FileReplacement(const QString &fileName)
    : m_fileName(behindLinks(fileName))
{
}

FileReplacement::FileReplacement(const QString &fileName, const QString &beside)
    : m_fileName(behindLinks(fileName))
    , m_beside(beside)
{
}

FileReplacement::~FileReplacement()
{
    if (m_beside.isOpen() || m_isWritten)
        m_beside.remove();
}

bool FileReplacement::write(const QByteArray &content)
{
    if (!isFileOrFree() || !openBeside())
        return false;
    copyRights();
    if (!writeAll(content) || !reachDisk())
        return false;
    m_beside.close();
    m_isWritten = true;
    return true;
}

bool FileReplacement::commit()
{
    if (!m_isWritten || !mayReplace())
        return false;
    const std::error_code failure = SystemFiles::moveInPlace(m_beside.fileName(), m_fileName);
    if (failure)
        return fail(Fault::System, textOf(failure));
    m_isWritten = false;
    // The new name is on the disk only when its folder is. Nothing is lost without.
    SystemFiles::syncFolder(QFileInfo(m_fileName).path());
    return true;
}

// A device or a pipe would be gone for all who use it.
bool FileReplacement::isFileOrFree()
{
    const QFileInfo info(m_fileName);
    const bool isThere = info.isSymLink() || info.exists(); // a link leads in a circle
    return !isThere || info.isFile() || fail(Fault::NotAFile);
}

// Replacing needs no right to the file itself, but somebody who takes that right
// away means it.
bool FileReplacement::mayReplace()
{
    const QFileInfo info(m_fileName);
    return isFileOrFree() && (!info.exists() || info.isWritable() || fail(Fault::ReadOnly));
}

bool FileReplacement::openBeside()
{
    if (m_beside.fileName().isEmpty())
        m_beside.setFileName(newNameBeside(QFileInfo(m_fileName)));
    else
        m_beside.remove();
    return m_beside.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) ||
           fail(Fault::FolderClosed, m_beside.errorString());
}

// A disk that fills up takes a part and reports an error only when asked for the rest.
bool FileReplacement::writeAll(const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const qint64 taken = m_beside.write(content.constData() + done, content.size() - done);
        if (taken <= 0)
            return fail(Fault::System, m_beside.errorString());
        done += taken;
    }
    return true;
}

// Before the file takes its place: some file systems report a full disk only
// now, and after a power failure the name must not lead to an empty file.
bool FileReplacement::reachDisk()
{
    const std::error_code failure = SystemFiles::syncToDisk(m_beside);
    return !failure || fail(Fault::System, textOf(failure));
}

void FileReplacement::copyRights()
{
    if (!QFileInfo::exists(m_fileName))
        return;
    SystemFiles::copyOwner(m_fileName, m_beside);
    m_beside.setPermissions(QFile::permissions(m_fileName) | QFile::ReadOwner | QFile::WriteOwner);
}

bool FileReplacement::fail(Fault fault, const QString &systemText)
{
    m_fault = fault;
    m_systemText = systemText;
    return false;
}

} // namespace ORVTListview
