#include "widgets/view/HandlePage.h"

#include <new>

#ifdef Q_OS_UNIX
#include <sys/mman.h>
#include <unistd.h>
#else
#include <cstring>

#include <windows.h>
#endif

namespace ORVTListview {
namespace {

#ifdef Q_OS_UNIX
std::size_t pageSize()
{
    return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

void *mapped(std::size_t size)
{
    void *memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    return memory;
}

void unmap(void *memory, std::size_t size)
{
    munmap(memory, size);
}

void empty(void *memory, std::size_t size)
{
    madvise(memory, size, MADV_DONTNEED);
}
#else
std::size_t pageSize()
{
    SYSTEM_INFO system{};
    GetSystemInfo(&system);
    return system.dwPageSize;
}

void *mapped(std::size_t size)
{
    void *memory = VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void unmap(void *memory, std::size_t)
{
    VirtualFree(memory, 0, MEM_RELEASE);
}

// The system may take the pages and give back what was in them or zeros: the same here.
void empty(void *memory, std::size_t size)
{
    std::memset(memory, 0, size);
    VirtualAlloc(memory, size, MEM_RESET, PAGE_READWRITE);
}
#endif

} // namespace

void *HandlePage::allocate(std::size_t size)
{
    if (m_used + size > m_size) {
        m_isFull = true;
        giveBack();
        return nullptr;
    }
    void *taken = m_memory + m_used;
    m_used += size;
    ++m_living;
    return taken;
}

void HandlePage::letGo()
{
    --m_living;
    giveBack();
}

void HandlePage::giveBack()
{
    if (m_isFull && m_living == 0)
        empty(m_memory, m_size);
}

HandlePages::~HandlePages()
{
    for (const Run &run : m_runs) {
        if (run.memory)
            unmap(run.memory, run.pages * pageSize());
    }
}

HandlePages::Place HandlePages::allocate(std::size_t size)
{
    void *memory = m_pages.empty() ? nullptr : m_pages.back().allocate(size);
    if (!memory)
        memory = newPage().allocate(size);
    return {memory, m_pages.back()};
}

// One at first: most views have few handles.
HandlePage &HandlePages::newPage()
{
    constexpr std::size_t pagesAtOnce = 16;
    const std::size_t size = pageSize();
    if (m_unused == 0) {
        const std::size_t pages = m_runs.empty() ? 1 : pagesAtOnce;
        Run &added = m_runs.emplace_back(); // first, lest mapped memory be lost
        added.memory = static_cast<std::byte *>(mapped(pages * size));
        added.pages = m_unused = pages;
    }
    const Run &run = m_runs.back();
    HandlePage &page = m_pages.emplace_back(run.memory + (run.pages - m_unused) * size, size);
    --m_unused;
    return page;
}

} // namespace ORVTListview
