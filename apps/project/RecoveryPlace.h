#pragma once

#include "base/FileLock.h"

#include <QtCore/QString>

#include <memory>

namespace ORVTListview {

// One place for the recovery file of a workbench, and beside it the lock that tells
// whether that workbench lives.
class RecoveryPlace
{
public:
    // Tries to take the lock.
    RecoveryPlace(const QString &fileName, const QString &lockFile);

    const QString &fileName() const { return m_fileName; }

    // Tries once more where there was no folder for the lock, or its file has been taken away.
    bool take();

    bool isOurs() const { return m_lock->isHeld(); }
    bool isOthers() const { return m_lock->isHeldElsewhere(); }

private:
    QString m_fileName;
    QString m_lockFile;
    std::unique_ptr<FileLock> m_lock;
};

} // namespace ORVTListview
