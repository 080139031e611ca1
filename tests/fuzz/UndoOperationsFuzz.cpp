// Any order of operations on the undo ring agrees with a tape, and each slot comes back
// exactly.

#include "fuzz/FuzzBytes.h"

#include "editor/rules/undo/UndoStore.h"
#include "editor/rules/undo/UndoTape.h"

#include <optional>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

class Operations
{
public:
    Operations(FuzzBytes &bytes, qsizetype pendingBound)
        : m_bytes(bytes)
        , m_ring(pendingBound)
    {
    }

    void run()
    {
        for (int step = 0; step < 400 && !m_bytes.isEmpty(); ++step) {
            act(m_bytes.below(8));
            compareState();
            compareSlot(static_cast<qint16>(m_bytes.below(UndoStore::slotCount)));
        }
        for (qint16 slot = 0; slot < UndoStore::slotCount; ++slot)
            compareSlot(slot);
    }

private:
    void act(int choice)
    {
        if (choice <= 2)
            store();
        else if (choice == 3)
            demand(m_ring.UndoStepBack() == moved(m_tape.back()), "a step back");
        else if (choice == 4)
            demand(m_ring.RedoStepForward() == moved(m_tape.forward()), "a step forward");
        else if (choice == 5)
            setBase();
        else if (choice == 6)
            demand(m_ring.encodePending(1 + m_bytes.below(3000)) == m_ring.isEncodingPending(),
                   "whether encoding goes on");
        else if (m_bytes.below(8) == 0)
            clear();
    }

    std::optional<qint16> moved(bool isMoved) const
    {
        return isMoved ? std::optional(static_cast<qint16>(m_tape.current())) : std::nullopt;
    }

    void store()
    {
        change();
        const UndoRecord record{m_text, m_bytes.below(5000), m_bytes.below(5000)};
        m_ring.StoreUndoSnapshot(record);
        m_tape.push(joinUndoRecord(record));
    }

    void setBase()
    {
        change();
        m_ring.ResetUndoBase(m_text);
        m_tape.setBase(joinUndoRecord({m_text, 0, 0}));
    }

    void clear()
    {
        m_ring.ClearUndoHistory();
        m_tape.clear();
    }

    void change()
    {
        const int place = m_bytes.below(static_cast<int>(m_text.size()) + 1);
        const int removed = m_bytes.below(64);
        const int times = 1 + (m_text.size() < 2000 ? m_bytes.below(64) : 0);
        m_text.replace(place, removed, m_bytes.text().repeated(times));
        m_text.truncate(4000);
    }

    void compareState() const
    {
        demand(m_ring.isSound(), "the ring is sound");
        const QString indices = QStringLiteral("%1 %2 %3 %4")
                                    .arg(m_ring.UndoOldest())
                                    .arg(m_ring.UndoCurrent())
                                    .arg(m_ring.UndoNewest())
                                    .arg(m_ring.UndoWrapped());
        demand(indices == m_tape.indices(), "the indices are the tape's");
        demand(m_ring.CanUndo() == m_tape.canGoBack(), "undo is possible as on the tape");
        demand(m_ring.CanRedo() == m_tape.canGoForward(), "redo is possible as on the tape");
    }

    void compareSlot(qint16 slot) const
    {
        demand(m_ring.FetchUndoSnapshot(slot) == m_tape.record(slot), "each slot comes back");
    }

    FuzzBytes &m_bytes;
    UndoStore m_ring;
    UndoTape m_tape;
    QString m_text;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    constexpr qsizetype bounds[] = {0, 3000, 50'000, 1'000'000};
    Operations(bytes, bounds[bytes.below(4)]).run();
    return 0;
}
