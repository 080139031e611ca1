#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>

#include <chrono>
#include <memory>

namespace ORVTListview {

// Keeps other processes, and other locks of this one, out while it lives. The
// lock ends with the process that holds it, however that ends. Its file is
// created where missing, stays empty and is never removed: removing it could
// leave two holders.
class ORVT_HOUSE_EXPORT FileLock
{
public:
    // Waits for a lock held elsewhere, but no longer than patience.
    FileLock(const QString &fileName, std::chrono::milliseconds patience);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock) // one lock, one release

    // False: held elsewhere all the time, or the file cannot be opened or locked.
    bool isHeld() const { return m_held; }

private:
    struct Handle;

    std::unique_ptr<Handle> m_handle;
    bool m_held;
};

} // namespace ORVTListview
