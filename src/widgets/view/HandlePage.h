#pragma once

#include <QtCore/QtGlobal>

#include <cstddef>

namespace ORVTListview {

// A page of memory for handles, which can be read for as long as the page lives. Once
// all that was taken of it has been let go, it reads as zeros and, where the system can
// take single pages back, costs no memory.
class HandlePage
{
public:
    // Raises std::bad_alloc.
    HandlePage();
    ~HandlePage();
    Q_DISABLE_COPY_MOVE(HandlePage) // handles lie in it

    // Null when it is full. Aligned for pointers.
    void *allocate(std::size_t size);
    void letGo();

private:
    void giveBack();

    std::size_t m_size;
    std::byte *m_memory; // as long as m_size says
    std::size_t m_used = 0;
    int m_living = 0;
    bool m_isFull = false;
};

} // namespace ORVTListview
