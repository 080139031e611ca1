#include "base/FileLock.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#ifdef Q_OS_UNIX
#include <QtCore/QFile>

#include <cerrno>
#include <sys/file.h>
#else
#include <QtCore/QLockFile>
#endif

namespace ORVTListview {

#ifdef Q_OS_UNIX

// The system's own lock: a file whose existence is the lock outlives a process
// that is killed at the wrong moment.
struct FileLock::Handle
{
    explicit Handle(const QString &fileName)
        : file(fileName)
    {
    }

    bool acquire(QDeadlineTimer deadline)
    {
        // A lock file of somebody else may be open to reading only; that will do.
        if (!file.open(QIODevice::ReadWrite) && !file.open(QIODevice::ReadOnly))
            return false;
        while (::flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
            if ((errno != EWOULDBLOCK && errno != EINTR) || deadline.hasExpired())
                return false;
            QThread::usleep(200);
        }
        return true;
    }

    QFile file; // closing it gives the lock back
};

#else

struct FileLock::Handle
{
    explicit Handle(const QString &fileName)
        : file(fileName)
    {
    }

    bool acquire(QDeadlineTimer deadline)
    {
        return file.tryLock(static_cast<int>(deadline.remainingTime()));
    }

    QLockFile file;
};

#endif

FileLock::FileLock(const QString &fileName, std::chrono::milliseconds patience)
    : m_handle(std::make_unique<Handle>(fileName))
    , m_held(m_handle->acquire(QDeadlineTimer(patience)))
{
}

FileLock::~FileLock() = default;

} // namespace ORVTListview
