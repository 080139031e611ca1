#include "widgets/view/HandlePage.h"

#include <new>
#include <sys/mman.h>
#include <unistd.h>

namespace ORVTListview {

HandlePage::HandlePage()
    : m_size(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)))
{
    void *memory =
        mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    m_memory = static_cast<std::byte *>(memory);
}

HandlePage::~HandlePage()
{
    munmap(m_memory, m_size);
}

void *HandlePage::take(std::size_t size)
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
        madvise(m_memory, m_size, MADV_DONTNEED);
}

} // namespace ORVTListview
