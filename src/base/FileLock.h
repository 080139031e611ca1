#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>

#include <chrono>
#include <memory>

namespace ORVTListview {

class LockedFile;

// Keeps other processes, and other locks of this one, out while it lives. The lock ends
// with the process that holds it, however that ends, and counts on every machine that sees
// the file where the file system carries locks (NFS and SMB do). Its file is created where
// missing and stays empty.
class ORVT_HOUSE_EXPORT FileLock
{
public:
    // What becomes of the file afterwards. Who waits for one that goes takes its successor.
    enum class File { Stays, Goes };

    // Waits for a lock held elsewhere, but no longer than patience.
    FileLock(const QString &fileName, std::chrono::milliseconds patience, File file = File::Stays);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock) // one lock, one release

    // False: held elsewhere all the time, or the file cannot be opened or locked.
    bool isHeld() const;
    bool isHeldElsewhere() const;

    // Whether its file still has its name. Once somebody has moved or removed the file,
    // others can lock the next one of that name.
    bool isInPlace() const;

private:
    std::unique_ptr<LockedFile> m_locked;
    File m_file;
};

} // namespace ORVTListview
