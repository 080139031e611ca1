#pragma once

// Lets a death test run out of memory. The sanitizers' own tables do not fit
// under a limit on the address space, so there is none with them.

#include <QtCore/qglobal.h>

#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__)
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
