#pragma once

// Lets a death test run out of memory.

#include <QtCore/qglobal.h>

#ifdef Q_OS_LINUX
#define ORVT_HAS_MEMORY_LIMIT

#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

// From now on this process gets no more than so many bytes beside what it has.
inline void limitMemory(rlim_t bytes)
{
    std::ifstream sizes("/proc/self/statm");
    rlim_t pages = 0;
    sizes >> pages;
    const rlim_t most = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + bytes;
    const rlimit limit{most, most};
    if (!sizes || setrlimit(RLIMIT_AS, &limit) != 0)
        std::abort();
}

#endif
