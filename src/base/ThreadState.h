#pragma once

#include "base/HouseExport.h"

#include <QtCore/qglobal.h>

#include <memory>
#include <typeindex>
#include <unordered_map>

namespace ORVTListview {

// What the components of one user-interface thread share: the vocabulary, the
// word index, the editor's settings and so on, each a part that is made when it
// is first asked for. The state knows no part; who needs one names its type.
class ORVT_HOUSE_EXPORT ThreadState
{
public:
    ThreadState();
    ~ThreadState();
    Q_DISABLE_COPY_MOVE(ThreadState) // parts are held by address

    // The calling thread's state.
    static ThreadState &current();

    template <typename Part>
    Part &part()
    {
        std::shared_ptr<void> &slot = m_parts[std::type_index(typeid(Part))];
        if (!slot)
            slot = std::make_shared<Part>();
        return *static_cast<Part *>(slot.get());
    }

    // Puts a fresh state in force on this thread and the former one back at its
    // end. For tests and for hosts that embed two separate projects.
    class Fresh
    {
    public:
        Fresh();
        ~Fresh();
        Q_DISABLE_COPY_MOVE(Fresh) // strictly nested

    private:
        std::unique_ptr<ThreadState> m_former;
    };

private:
    std::unordered_map<std::type_index, std::shared_ptr<void>> m_parts;
};

template <typename Part>
Part &threadPart()
{
    return ThreadState::current().part<Part>();
}

} // namespace ORVTListview
