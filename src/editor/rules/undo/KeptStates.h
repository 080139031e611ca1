#pragma once

#include "base/HouseExport.h"
#include "editor/rules/undo/HeldState.h"

#include <QtCore/qglobal.h>

#include <deque>
#include <limits>
#include <optional>

namespace ORVTListview {

class UndoStore;

// What one editor showed and no step of the ring brings back. Snapshots are taken
// before some changes only, so the text typed since the last one, or a program that
// one letter took the place of, stands in no slot; and a snapshot after an undo drops
// those that lay ahead. Each editor has its own, because all of them share the ring.
//
// They lie beside the ring, which never sees them: no index moves, CanUndo and
// CanRedo do not count them. The editor goes
// - back to one from which it was changed, when the ring has nothing to undo and the
//   ring is not at an earlier state already,
// - forward to one that undo or redo took away, when nothing lies ahead, until an edit,
// - to any of them, the latest first, when it is told to.
// What it shows then it can leave the same way again. A state lasts until 49 more
// snapshots are taken, as long as one in the ring does, and at most as many and as
// many bytes as below: then the oldest go.
class ORVT_HOUSE_EXPORT KeptStates
{
public:
    enum class Way { Back, Forward };

    static constexpr std::size_t most = 1000;
    static constexpr qsizetype defaultMostBytes = qsizetype{128} * 1024 * 1024;

    explicit KeptStates(qsizetype mostBytes = defaultMostBytes);
    ~KeptStates();
    Q_DISABLE_COPY_MOVE(KeptStates)

    // Whether what the editor shows stands in the ring, or here, unchanged.
    bool isShownSafe(const UndoStore &ring) const;

    // The editor is about to take away what it shows, and it is to be kept if that
    // comes about. A text that has stood for a while is to be offered in any case: as
    // one that a step showed, it may not last long in the ring.
    void offer(const UndoState &shown);
    void withdraw() { m_offered.reset(); }

    // The editor's text was changed by anything but a step or a state from here. True
    // when what was offered is kept.
    bool noteEdit(const UndoStore &ring);

    // Around a snapshot of what the editor shows.
    void beforeSnapshot(const UndoStore &ring);
    void afterSnapshot(const UndoStore &ring);

    // Before a step that the ring can take, with what the editor shows; and after it,
    // when the slot is shown.
    void beforeStep(const UndoStore &ring, const UndoState &shown);
    void afterStep(const UndoStore &ring);

    // A state that the ring holds and cannot give back.
    void keepUnreachable(const UndoStore &ring, const UndoState &state);

    // The state to show next, exactly as it was, if there is one; it stays kept. May
    // raise Error.
    bool canGo(Way way) const;
    std::optional<UndoState> go(const UndoStore &ring, const UndoState &shown, Way way);

    // The same, from the latest to the oldest; after that none, and it begins anew.
    bool canBringBack() const;
    std::optional<UndoState> bringBack(const UndoStore &ring, const UndoState &shown);

    void clear();

    // As UndoStore's.
    bool encodePending(qsizetype characters);

private:
    enum class Place { Behind, Ahead, Aside }; // Aside, only bringBack finds it

    struct Kept
    {
        qint64 id = 0; // grows from front to back
        Place place = Place::Aside;
        qint64 depth = 0;     // where in the ring, and
        qint64 snapshots = 0; // when it was last shown
        HeldState state;
    };
    static constexpr qint64 noId = std::numeric_limits<qint64>::min();
    using States = std::deque<Kept>;

    static Place placeFor(Way way) { return way == Way::Back ? Place::Behind : Place::Ahead; }
    States::iterator shownState();
    States::const_iterator next(Place place) const;
    void add(const UndoStore &ring, HeldState state, Place place);
    void addOldest(const UndoStore &ring, HeldState state);
    void renew(const UndoStore &ring, States::iterator kept, Place place);
    void leave(const UndoStore &ring, const UndoState &shown, Place place);
    void moveAside(Place place, qint64 fromDepth);
    void laterBranchLast(const UndoStore &ring);
    void showKept(qint64 id);
    void dropOldest();
    qsizetype bytes() const;
    void setSafe(const UndoStore &ring, bool fromOldSlot);

    States m_states;
    std::optional<UndoState> m_offered;
    qsizetype m_mostBytes;
    qint64 m_lastId = 0;
    qint64 m_shown = noId;        // of them
    qint64 m_nextBelow;           // where bringBack goes on
    bool m_isSafe = false;        // as long as nobody else takes
    qint64 m_safeAt = 0;          // a snapshot
    bool m_isFromOldSlot = false; // shown by a step
};

} // namespace ORVTListview
