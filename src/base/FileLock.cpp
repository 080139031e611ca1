#include "base/FileLock.h"

#include "base/LockedFile.h"

namespace ORVTListview {

FileLock::FileLock(const QString &fileName, std::chrono::milliseconds patience, File file)
    : m_locked(std::make_unique<LockedFile>(fileName, QDeadlineTimer(patience)))
    , m_file(file)
{
}

FileLock::~FileLock()
{
    if (isHeld() && m_file == File::Goes)
        m_locked->remove();
}

bool FileLock::isHeld() const
{
    return m_locked->state() == LockedFile::State::Held;
}

bool FileLock::isHeldElsewhere() const
{
    return m_locked->state() == LockedFile::State::HeldElsewhere;
}

bool FileLock::isInPlace() const
{
    return isHeld() && m_locked->isInPlace();
}

} // namespace ORVTListview
