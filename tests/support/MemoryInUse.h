#pragma once

#include <QtCore/qglobal.h>

#include <malloc.h>

// What this process has taken and not given back, in bytes.
#ifdef Q_OS_WIN
inline qint64 memoryInUse()
{
    qint64 bytes = 0;
    _HEAPINFO entry = {};
    while (_heapwalk(&entry) == _HEAPOK) {
        if (entry._useflag == _USEDENTRY)
            bytes += static_cast<qint64>(entry._size);
    }
    return bytes;
}
#else
// Of the sanitizers' library, where there is one. They keep what was given back for a
// while, and know how much is in use.
extern "C" std::size_t __attribute__((weak)) __sanitizer_get_current_allocated_bytes();

inline qint64 memoryInUse()
{
    if (__sanitizer_get_current_allocated_bytes != nullptr)
        return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
    const auto info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}
#endif
