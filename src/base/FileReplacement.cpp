#include "base/FileReplacement.h"

#include "base/FilePlace.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

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

#ifdef Q_OS_UNIX
bool syncToDisk(int handle)
{
    return ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// The new name is on the disk only when its folder is. Nothing is lost without.
void syncFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    syncToDisk(handle);
    ::close(handle);
}
#endif

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
    std::error_code failure;
    std::filesystem::rename(QFileInfo(m_beside).filesystemFilePath(),
                            QFileInfo(m_fileName).filesystemFilePath(), failure);
    if (failure)
        return fail(Fault::System, textOf(failure));
    m_isWritten = false;
#ifdef Q_OS_UNIX
    syncFolder(QFileInfo(m_fileName).path());
#endif
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
#ifdef Q_OS_UNIX
    if (!syncToDisk(m_beside.handle()))
        return fail(Fault::System, textOf({errno, std::generic_category()}));
#endif
    return true;
}

void FileReplacement::copyRights()
{
    if (!QFileInfo::exists(m_fileName))
        return;
#ifdef Q_OS_UNIX
    struct stat old = {};
    if (::stat(QFile::encodeName(m_fileName).constData(), &old) == 0 &&
        ::fchown(m_beside.handle(), old.st_uid, old.st_gid) != 0 &&
        ::fchown(m_beside.handle(), static_cast<uid_t>(-1), old.st_gid) != 0) {
        // Only an administrator can keep another owner; the content matters more.
    }
#endif
    m_beside.setPermissions(QFile::permissions(m_fileName) | QFile::ReadOwner | QFile::WriteOwner);
}

bool FileReplacement::fail(Fault fault, const QString &systemText)
{
    m_fault = fault;
    m_systemText = systemText;
    return false;
}

} // namespace ORVTListview
