#include "base/LockedFile.h"

#include <QtCore/QFile>
#include <QtCore/QThread>

#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>

namespace ORVTListview {
namespace {

using State = LockedFile::State;

State lock(QFile &file, const QDeadlineTimer &deadline)
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

} // namespace

struct LockedFile::System
{
    QFile file;
};

// Its former holder may have taken the file away by the time that it is locked.
LockedFile::LockedFile(const QString &fileName, const QDeadlineTimer &deadline)
    : m_system(std::make_unique<System>())
    , m_state(State::Held)
{
    constexpr int mostFiles = 100; // where the system gives no file its lasting number
    m_system->file.setFileName(fileName);
    for (int i = 0; i < mostFiles && m_state == State::Held; ++i) {
        m_system->file.close();
        m_state = lock(m_system->file, deadline);
        if (m_state == State::Held && isInPlace())
            break;
    }
}

LockedFile::~LockedFile() = default;

bool LockedFile::isInPlace() const
{
    const QFile &file = m_system->file;
    struct stat own = {};
    struct stat named = {};
    return ::fstat(file.handle(), &own) == 0 &&
           ::stat(QFile::encodeName(file.fileName()).constData(), &named) == 0 &&
           own.st_ino == named.st_ino && own.st_dev == named.st_dev;
}

void LockedFile::remove()
{
    if (isInPlace())
        QFile::remove(m_system->file.fileName());
}

} // namespace ORVTListview
