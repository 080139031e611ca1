#include "base/FileLock.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#ifdef Q_OS_UNIX
#include <QtCore/QFile>

#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>
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

    // Its former holder may have taken the file away by the time that it is locked.
    State acquire(const QDeadlineTimer &deadline)
    {
        constexpr int mostFiles = 100; // where the system gives no file its lasting number
        State state = State::Held;
        for (int i = 0; i < mostFiles && state == State::Held; ++i) {
            file.close();
            state = lock(deadline);
            if (state == State::Held && isInPlace())
                break;
        }
        return state;
    }

    bool isInPlace() const
    {
        struct stat own = {};
        struct stat named = {};
        return ::fstat(file.handle(), &own) == 0 &&
               ::stat(QFile::encodeName(file.fileName()).constData(), &named) == 0 &&
               own.st_ino == named.st_ino && own.st_dev == named.st_dev;
    }

    // Before the lock is given back: nobody else removes what another one has locked.
    void removeFile()
    {
        if (isInPlace())
            QFile::remove(file.fileName());
    }

    QFile file; // closing it gives the lock back

private:
    State lock(const QDeadlineTimer &deadline)
    {
        // A lock file of somebody else may be open to reading only; that will do.
        if (!file.open(QIODevice::ReadWrite) && !file.open(QIODevice::ReadOnly))
            return State::Impossible;
        while (::flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR)
                return State::Impossible;
            if (errno == EWOULDBLOCK && deadline.hasExpired())
                return State::HeldElsewhere;
            QThread::usleep(200);
        }
        return State::Held;
    }
};

#else

struct FileLock::Handle
{
    explicit Handle(const QString &fileName)
        : file(fileName)
    {
    }

    State acquire(const QDeadlineTimer &deadline)
    {
        if (file.tryLock(static_cast<int>(deadline.remainingTime())))
            return State::Held;
        return file.error() == QLockFile::LockFailedError ? State::HeldElsewhere
                                                          : State::Impossible;
    }

    // The system keeps the file there, and it goes with the lock.
    bool isInPlace() const { return true; }
    void removeFile() {}

    QLockFile file;
};

#endif

FileLock::FileLock(const QString &fileName, std::chrono::milliseconds patience, File file)
    : m_handle(std::make_unique<Handle>(fileName))
    , m_state(m_handle->acquire(QDeadlineTimer(patience)))
    , m_file(file)
{
}

FileLock::~FileLock()
{
    if (isHeld() && m_file == File::Goes)
        m_handle->removeFile();
}

bool FileLock::isInPlace() const
{
    return isHeld() && m_handle->isInPlace();
}

} // namespace ORVTListview
