#pragma once

#include "base/ColouredText.h"
#include "base/HouseExport.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/LineColouring.h"
#include <ORVTListview/Types.h>

#include <QtCore/QList>
#include <QtCore/QStringView>

#include <atomic>
#include <functional>
#include <future>
#include <optional>
#include <vector>

namespace ORVTListview {

class SharedText;

// A long text coloured in parts of whole lines: whoever takes one after the other works on
// them while other threads colour those that follow.
class ORVT_HOUSE_EXPORT PartsInTurn
{
public:
    using Colouring =
        std::function<ColouredPart(const ColourEngine &, QStringView lines)>; // for threads

    // The text, the engine's words and what the colouring goes by stay as they are while it
    // lives. Nothing is done before the first part is asked for.
    PartsInTurn(const ColourEngine &engine, QStringView text, Colouring colouring);
    ~PartsInTurn();
    Q_DISABLE_COPY_MOVE(PartsInTurn) // threads know it

    // What finishedText and colouredText make of the whole.
    static Colouring finished(const RichTextSettings &settings, Spelling spelling);
    static Colouring coloured(const RichTextSettings &settings);

    // The next part, without the line end behind it; none after the last.
    std::optional<ColouredText> next();

    // Whether what another text has in common with it at its ends is less than half of it, and
    // it is long. To be asked before the first part is.
    bool differsMostlyFrom(const SharedText &other);

private:
    void begin();
    void colourFrom(std::size_t first);
    void colourUntaken(std::size_t part);
    void colour(std::size_t part);

    const ColourEngine m_engine;
    const Colouring m_colouring;
    QList<QStringView> m_texts;
    std::vector<ColouredPart> m_coloured;
    std::vector<std::promise<void>> m_promises;
    std::vector<std::atomic_flag> m_isTaken; // by a thread that colours it
    std::atomic<bool> m_isOver{false};
    std::size_t m_next = 0;
    Colour m_colour = ColouredText::automatic; // of the last word so far
    std::vector<std::future<void>> m_others;   // each waits for its end, so they go first
};

} // namespace ORVTListview
