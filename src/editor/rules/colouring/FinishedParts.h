#pragma once

#include "base/ColouredText.h"
#include "base/HouseExport.h"
#include "editor/rules/colouring/ColourEngine.h"
#include <ORVTListview/Types.h>

#include <QtCore/QList>
#include <QtCore/QStringView>

#include <atomic>
#include <future>
#include <optional>
#include <vector>

namespace ORVTListview {

// What finishedText makes of a long text, in parts of whole lines: whoever takes one after
// the other works on them while other threads finish those that follow.
class ORVT_HOUSE_EXPORT FinishedParts
{
public:
    // The text and the engine's words stay as they are while it lives. Nothing
    // is done before the first part is asked for.
    FinishedParts(const ColourEngine &engine, QStringView text, const RichTextSettings &settings);
    ~FinishedParts();
    Q_DISABLE_COPY_MOVE(FinishedParts) // threads know it

    // The next part, without the line end behind it; none after the last.
    std::optional<ColouredText> next();

private:
    void begin();
    void finishFrom(std::size_t first);
    void finish(std::size_t part);

    const ColourEngine m_engine;
    const RichTextSettings m_settings;
    QList<QStringView> m_texts;
    std::vector<ColouredText> m_finished;
    std::vector<std::promise<void>> m_promises;
    std::vector<std::atomic_flag> m_isTaken; // by a thread that finishes it
    std::atomic<bool> m_isOver{false};
    std::size_t m_next = 0;
    std::vector<std::future<void>> m_others; // each waits for its end, so they go first
};

} // namespace ORVTListview
