#include "project/RecoveryPlace.h"

#include <chrono>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

std::unique_ptr<FileLock> lockOf(const QString &fileName)
{
    return std::make_unique<FileLock>(fileName, 0ms, FileLock::File::Goes);
}

} // namespace

RecoveryPlace::RecoveryPlace(const QString &fileName, const QString &lockFile)
    : m_fileName(fileName)
    , m_lockFile(lockFile)
    , m_lock(lockOf(lockFile))
{
}

bool RecoveryPlace::take()
{
    if (!m_lock->isInPlace())
        m_lock = lockOf(m_lockFile);
    return isOurs();
}

} // namespace ORVTListview
