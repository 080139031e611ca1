#pragma once

#include <QtCore/qglobal.h>

#include <malloc.h>

// Of the sanitizers' library, where there is one.
extern "C" std::size_t __attribute__((weak)) __sanitizer_get_current_allocated_bytes();

// What this process has taken and not given back, in bytes. The sanitizers keep what was
// given back for a while, and know how much is in use.
inline qint64 memoryInUse()
{
    if (__sanitizer_get_current_allocated_bytes != nullptr)
        return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
    const auto info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}
