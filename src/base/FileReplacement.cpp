#include "base/FileReplacement.h"

#include <QtCore/QFileInfo>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace ORVTListview {

FileReplacement::FileReplacement(const QString &fileName)
    : m_fileName(fileName)
    , m_beside(fileName + u".new"_s)
{
}

FileReplacement::~FileReplacement()
{
    if (m_beside.isOpen() || m_isWritten)
        m_beside.remove();
}

bool FileReplacement::write(const QByteArray &content)
{
    m_beside.remove(); // of a process that was killed
    if (!m_beside.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    takeRights();
    if (!writeAll(content) || !reachDisk())
        return false;
    m_beside.close();
    m_isWritten = true;
    return true;
}

bool FileReplacement::commit()
{
    if (!m_isWritten)
        return false;
    std::error_code failure;
    std::filesystem::rename(QFileInfo(m_beside).filesystemFilePath(),
                            QFileInfo(m_fileName).filesystemFilePath(), failure);
    m_isWritten = static_cast<bool>(failure);
    return !failure;
}

// A disk that fills up takes a part and reports an error only when asked for the rest.
bool FileReplacement::writeAll(const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const qint64 taken = m_beside.write(content.constData() + done, content.size() - done);
        if (taken <= 0)
            return false;
        done += taken;
    }
    return true;
}

// Before the file takes its place: some file systems report a full disk only
// now, and after a power failure the name must not lead to an empty file.
bool FileReplacement::reachDisk()
{
#ifdef Q_OS_UNIX
    return ::fsync(m_beside.handle()) == 0 || errno == EINVAL || errno == ENOTSUP;
#else
    return true;
#endif
}

void FileReplacement::takeRights()
{
    if (!QFileInfo::exists(m_fileName))
        return;
#ifdef Q_OS_UNIX
    struct stat old = {};
    if (::stat(QFile::encodeName(m_fileName).constData(), &old) == 0 &&
        ::fchown(m_beside.handle(), old.st_uid, old.st_gid) != 0) {
        // Only an administrator can keep another owner; the content matters more.
    }
#endif
    m_beside.setPermissions(QFile::permissions(m_fileName) | QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace ORVTListview
