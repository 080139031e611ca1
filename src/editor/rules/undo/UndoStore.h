#pragma once

#include "base/HouseExport.h"
#include "base/SharedText.h"
#include "editor/rules/undo/UndoRecord.h"

#include <array>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

namespace ORVTListview {

class HeldState;
class UndoSlotEncoder;

// The snapshots that undo and redo go back and forth in. All code editors of a
// user-interface thread share one, threadPart<UndoStore>(), and so undo into each
// other's snapshots.
//
// Snapshots stand in a ring of 50 slots, 0 to 49:
//
//     0     1     2     3     4     5    ...   49
//    base   A     B     C     D     -           -
//     ^           ^           ^
//   UndoOldest  UndoCurrent  UndoNewest
//
// - Slot 0 is the base: the text that the host set. It is there from
//   ResetUndoBase on and needs no snapshot.
// - A snapshot goes into the slot behind UndoCurrent, which becomes UndoNewest:
//   what stood ahead can no longer be reached. It is taken before a change, so
//   the text on the screen is most often in no slot yet (see KeptStates).
// - A step moves UndoCurrent first; what is restored is the slot it reaches.
// - The 50th snapshot in a row comes to slot 0 again and the ring has wrapped
//   (UndoWrapped, until ClearUndoHistory). From then on every slot but UndoNewest
//   lies behind, so that 49 steps back can be taken. When snapshots had been
//   dropped by one taken after an undo, the last of these steps meet them.
// - Setting a base later overwrites slot 0, wherever the ring stands.
//
// Long records are held compressed, but storing one must not hold up a key: it is
// kept plain, sharing its text with whoever gave it, and encoded by encodePending
// while the program is idle. What has been encoded stays plain beside that as far as
// there is room. The members for the ring show the same either way.
// Why it is so: docs/decisions/undo.md.
class ORVT_HOUSE_EXPORT UndoStore
{
public:
    static constexpr qint16 slotCount = 50;

    // About two milliseconds of compressing.
    static constexpr qsizetype sliceLength = qsizetype{64} * 1024;

    // 49 snapshots of a text of 1 MB take less.
    static constexpr qsizetype defaultPendingBound = qsizetype{128} * 1024 * 1024;

    // The bytes of text that may wait to be encoded, besides the newest snapshot; half as
    // many may stay beside what was encoded of them.
    // At the bound, storing one looks for what those that wait have in common and
    // holds it once; where that is not enough, it encodes the oldest on the spot.
    explicit UndoStore(qsizetype pendingBound = defaultPendingBound);
    ~UndoStore();
    Q_DISABLE_COPY_MOVE(UndoStore) // shared by address

    qint16 UndoOldest() const { return m_oldest; }
    qint16 UndoNewest() const { return m_newest; }
    qint16 UndoCurrent() const { return m_current; }
    bool UndoWrapped() const { return m_wrapped; }

    // The slot as it is encoded (see UndoSlot.h), empty for an empty one; encodes
    // it on the spot when it has not been yet. This and everything else that takes
    // an index raises Error (SubscriptOutOfRange) outside 0 to 49.
    QString UndoSlots(qint16 index) const;

    // Puts an encoded slot in place, unchecked; the ring does not move.
    void setUndoSlot(qint16 index, const QString &slot);

    // Takes the next slot. Two equal snapshots in a row are two steps.
    void StoreUndoSnapshot(const UndoState &state);

    // The joined record of any slot, within reach or not; empty for an empty one.
    // Raises Error when a compressed slot is damaged.
    QString FetchUndoSnapshot(qint16 index) const;

    // The same, taken apart; none for an empty slot. A text that is plain is shared.
    // Raises Error also as splitUndoRecord does.
    std::optional<UndoState> FetchUndoState(qint16 index) const;

    // Writes the text, with the selection at its start, into slot 0. The ring does
    // not move.
    void ResetUndoBase(const QString &text);

    // Empties the ring, as if it had never been used.
    void ClearUndoHistory();

    bool CanUndo() const;
    bool CanRedo() const;

    // Move UndoCurrent and return it, or do nothing and return none.
    std::optional<qint16> UndoStepBack();
    std::optional<qint16> RedoStepForward();

    // The steps from the first slot ever to UndoCurrent, and a count that grows
    // with each snapshot: where and when something happened beside the ring.
    qint64 depth() const { return m_depth; }
    qint64 snapshotCount() const { return m_snapshotCount; }

    // What the slot holds, to be kept elsewhere. Takes no time in its length.
    HeldState held(qint16 index) const;

    // Whether the slot has this text, whatever its selection. A damaged slot has none.
    bool holdsText(qint16 index, const SharedText &text) const;

    // True while one of the objects below lives: no snapshots are to be taken.
    bool IsRestoringUndo() const { return m_isRestoring; }

    class Restoring
    {
    public:
        explicit Restoring(UndoStore &store)
            : m_store(store)
            , m_former(std::exchange(store.m_isRestoring, true))
        {
        }
        ~Restoring() { m_store.m_isRestoring = m_former; }
        Q_DISABLE_COPY_MOVE(Restoring) // strictly nested

    private:
        UndoStore &m_store;
        bool m_former;
    };

    // Whether a slot waits to be encoded. Snapshots and new bases come to wait.
    bool isEncodingPending() const;

    // The bytes of text that wait, the newest snapshot left out. What several have
    // in common counts once, if it is held once.
    qsizetype pendingBytes() const;

    // Takes the encoding so many characters further, the oldest slot first, and
    // returns isEncodingPending(). Never raises anything: what cannot be encoded
    // stays plain.
    bool encodePending(qsizetype characters = sliceLength);

    // What is wrong with the store's own state, in English; empty when nothing is.
    // Compressed records are not uncompressed for it.
    QString unsoundness() const;
    bool isSound() const { return unsoundness().isEmpty(); }

private:
    struct PlainSlot
    {
        SharedText text;
        QString tail;            // of the joined record
        QString encoded;         // empty until it is
        bool isWaiting = false;  // to be compressed
        bool isCompared = false; // with the slot before, for what they share

        QString record() const { return text.toString() + tail; }
    };
    using Slot = std::variant<QString, PlainSlot>; // a text is an encoded slot

    const Slot &slotAt(qint16 index) const;
    Slot &slotAt(qint16 index);
    const PlainSlot *waitingAt(qint16 index) const;
    qint16 NextUndoSlot();
    void put(qint16 index, Slot slot);
    static PlainSlot plainSlot(const UndoState &state);

    qint16 slotOfAge(int age) const;
    std::optional<qint16> oldestWaiting() const;
    std::optional<qint16> oldestNotCompared() const;
    bool isEncoding(qint16 index) const { return m_encoder && m_encodedSlot == index; }
    void encode(qint16 index, qsizetype characters);
    void share(qint16 index);
    void keepWithinBound();
    void dropPlainTexts();
    qsizetype plainBytes() const;

    QString indexFault() const;
    QString slotFault(qint16 index) const;

    std::array<Slot, slotCount> m_slots;
    qint16 m_oldest = 0;
    qint16 m_newest = 0;
    qint16 m_current = 0;
    bool m_wrapped = false;
    qint64 m_depth = 0;
    qint64 m_snapshotCount = 0;
    bool m_isRestoring = false;
    qsizetype m_pendingBound;
    std::unique_ptr<UndoSlotEncoder> m_encoder; // of the slot that is being encoded
    qint16 m_encodedSlot = 0;
};

} // namespace ORVTListview
