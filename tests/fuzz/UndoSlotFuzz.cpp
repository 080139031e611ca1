// Slots of the undo ring as a host or a damaged file gives them: each fails with Error
// or gives a record, and what was encoded comes back.

#include "fuzz/FuzzBytes.h"

#include "editor/rules/undo/HeldState.h"
#include "editor/rules/undo/UndoRecord.h"
#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStore.h"
#include <ORVTListview/Error.h>

#include <optional>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

constexpr qsizetype longestSlot = 1 << 20;

template <typename Act>
auto orNothing(Act act) -> std::optional<decltype(act())>
{
    try {
        return act();
    } catch (const Error &) {
        return std::nullopt;
    }
}

// A slot may announce up to 128 Mi characters, which takes as much memory and a while;
// the tests of compression look at that.
bool isCostly(const QString &slot)
{
    qint64 length = 0;
    for (const QChar c : slot.mid(1)) {
        if (c < u'0' || c > u'9')
            break;
        length = qMin<qint64>(length * 10 + (c.unicode() - u'0'), Q_INT64_C(1) << 40);
    }
    return length > longestSlot && length <= 128 * 1024 * 1024;
}

void checkRecord(const QString &joined)
{
    const auto strict = orNothing([&] { return splitUndoRecord(joined); });
    const auto own = orNothing([&] { return joinedUndoRecord(joined); });
    if (own)
        demand(joinedUndoRecord(joinUndoRecord(*own)) == *own, "a record joined comes back");
    if (strict)
        demand(own == strict, "a record that can be told apart is told apart alike");
}

void checkSlot(const QString &slot)
{
    UndoStore ring;
    ring.setUndoSlot(3, slot);
    demand(ring.UndoSlots(3) == slot, "a slot is kept as it is given");
    const auto joined = orNothing([&] { return ring.FetchUndoSnapshot(3); });
    demand(joined == orNothing([&] { return decodeUndoSlot(slot); }), "the ring decodes the slot");
    const auto held = orNothing([&] { return ring.held(3).state().record(); });
    ring.encodePending();
    demand(ring.UndoSlots(3) == slot, "encoding leaves a slot that is encoded");
    if (held && !slot.isEmpty())
        demand(joined && joinedUndoRecord(*joined) == *held,
               "a state kept elsewhere is the slot's");
    if (!joined)
        return;
    checkRecord(*joined);
    demand(decodeUndoSlot(encodeUndoSlot(*joined)) == *joined, "what is encoded comes back");
    const auto record = orNothing([&] { return joinedUndoRecord(*joined); });
    demand(!record || ring.holdsText(3, SharedText(record->text)) ||
               !orNothing([&] { return splitUndoRecord(*joined); }),
           "a slot holds its text");
}

} // namespace

// The first byte chooses: a slot, or one that was encoded and has some bits turned.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const int turns = bytes.below(8);
    QString slot;
    if (turns == 0) {
        slot = bytes.restText();
    } else {
        QList<int> places;
        for (int i = 1; i < turns; ++i)
            places.append(bytes.below(1 << 16));
        const QString text = bytes.restText();
        slot = encodeUndoSlot(joinUndoRecord({text.repeated(1 + turns), 3, 4}));
        for (const int place : places) {
            QChar &c = slot[(place >> 3) % slot.size()];
            c = QChar(static_cast<char16_t>(c.unicode() ^ (1 << (place & 7))));
        }
    }
    if (!isCostly(slot))
        checkSlot(slot);
    return 0;
}
