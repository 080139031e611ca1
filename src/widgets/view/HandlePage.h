#pragma once

#include <QtCore/QtGlobal>

#include <cstddef>
#include <deque>
#include <vector>

namespace ORVTListview {

// A page of memory for handles. Once all that was taken of it has been let go, it reads as
// zeros and, where the system can take single pages back, costs no memory.
class HandlePage
{
public:
    HandlePage(std::byte *memory, std::size_t size)
        : m_size(size)
        , m_memory(memory)
    {
    }
    Q_DISABLE_COPY_MOVE(HandlePage) // handles know it by address

    // Null when it is full. Aligned for pointers.
    void *allocate(std::size_t size);
    void letGo();

private:
    void giveBack();

    const std::size_t m_size;
    std::byte *const m_memory; // as long as m_size says
    std::size_t m_used = 0;
    int m_living = 0;
    bool m_isFull = false;
};

// The pages of a store, which can be read for as long as it lives.
class HandlePages
{
public:
    HandlePages() = default;
    ~HandlePages();
    Q_DISABLE_COPY_MOVE(HandlePages) // handles lie in it

    struct Place
    {
        void *memory = nullptr;
        HandlePage &page;
    };
    // Raises std::bad_alloc.
    Place allocate(std::size_t size);

private:
    HandlePage &newPage();

    struct Run
    {
        std::byte *memory = nullptr;
        std::size_t pages = 0;
    };
    std::vector<Run> m_runs;  // of pages, each taken from the system at once
    std::size_t m_unused = 0; // pages of the last one
    std::deque<HandlePage> m_pages;
};

} // namespace ORVTListview
