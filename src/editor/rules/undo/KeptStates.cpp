#include "editor/rules/undo/KeptStates.h"

#include "editor/rules/undo/UndoStore.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace ORVTListview {

namespace {

constexpr qint64 fromTheLatest = std::numeric_limits<qint64>::max();
constexpr qint64 anyDepth = std::numeric_limits<qint64>::min();

} // namespace

KeptStates::KeptStates(qsizetype mostBytes)
    : m_mostBytes(mostBytes)
    , m_nextBelow(fromTheLatest)
{
}

KeptStates::~KeptStates() = default;

void KeptStates::clear()
{
    m_states.clear();
    m_offered.reset();
    m_shown = noId;
    m_nextBelow = fromTheLatest;
    m_isSafe = m_isFromOldSlot = false;
}

bool KeptStates::isShownSafe(const UndoStore &ring) const
{
    return m_isSafe && (m_shown != noId || m_safeAt == ring.snapshotCount());
}

void KeptStates::setSafe(const UndoStore &ring, bool fromOldSlot)
{
    m_isSafe = true;
    m_safeAt = ring.snapshotCount();
    m_isFromOldSlot = fromOldSlot;
}

void KeptStates::offer(const UndoState &shown)
{
    m_offered = shown;
}

bool KeptStates::noteEdit(const UndoStore &ring)
{
    const bool wasSafe = isShownSafe(ring);
    const bool hadSafe = m_isSafe;
    const bool isKept = m_offered && (!wasSafe || m_isFromOldSlot);
    if (const auto shown = shownState(); shown != m_states.end())
        renew(ring, shown, Place::Behind);
    else if (isKept && wasSafe)
        addOldest(ring, HeldState(*m_offered));
    else if (isKept)
        add(ring, HeldState(*m_offered), Place::Behind);
    if (hadSafe) // nothing takes memory from here on
        moveAside(Place::Ahead, anyDepth);
    m_offered.reset();
    m_isSafe = m_isFromOldSlot = false;
    m_shown = noId;
    m_nextBelow = fromTheLatest;
    return isKept;
}

void KeptStates::beforeSnapshot(const UndoStore &ring)
{
    if (!ring.CanRedo())
        return;
    for (qint16 index = ring.UndoCurrent(); index != ring.UndoNewest();) {
        index = static_cast<qint16>((index + 1) % UndoStore::slotCount);
        add(ring, ring.held(index), Place::Aside);
    }
    laterBranchLast(ring);
}

// Of what lay ahead, the ring's states are older than the text that was in none.
void KeptStates::laterBranchLast(const UndoStore &ring)
{
    std::stable_partition(m_states.begin(), m_states.end(),
                          [&](const Kept &kept) { return kept.depth <= ring.depth(); });
    const qint64 formerlyShown = m_shown;
    for (Kept &kept : m_states) {
        const qint64 former = std::exchange(kept.id, ++m_lastId);
        if (former == formerlyShown)
            m_shown = kept.id;
    }
    m_nextBelow = fromTheLatest;
}

void KeptStates::afterSnapshot(const UndoStore &ring)
{
    setSafe(ring, false);
    constexpr qint64 longest = UndoStore::slotCount - 1;
    std::erase_if(m_states, [&](const Kept &kept) {
        return kept.id != m_shown && ring.snapshotCount() - kept.snapshots > longest;
    });
}

void KeptStates::beforeStep(const UndoStore &ring, const UndoState &shown)
{
    leave(ring, shown, Place::Ahead);
}

void KeptStates::afterStep(const UndoStore &ring)
{
    m_shown = noId;
    setSafe(ring, true);
    moveAside(Place::Behind, ring.depth());
}

void KeptStates::keepUnreachable(const UndoStore &ring, const UndoState &state)
{
    add(ring, HeldState(state), Place::Aside);
}

bool KeptStates::canGo(Way way) const
{
    return next(placeFor(way)) != m_states.end();
}

std::optional<UndoState> KeptStates::go(const UndoStore &ring, const UndoState &shown, Way way)
{
    const auto kept = next(placeFor(way));
    if (kept == m_states.end())
        return std::nullopt;
    const UndoState state = kept->state.state();
    const qint64 id = kept->id;
    leave(ring, shown, way == Way::Back ? Place::Ahead : Place::Behind);
    showKept(id);
    if (const auto now = shownState(); now != m_states.end())
        now->place = Place::Aside;
    return state;
}

bool KeptStates::canBringBack() const
{
    return std::any_of(m_states.begin(), m_states.end(),
                       [this](const Kept &kept) { return kept.id != m_shown; });
}

std::optional<UndoState> KeptStates::bringBack(const UndoStore &ring, const UndoState &shown)
{
    for (auto kept = m_states.rbegin(); kept != m_states.rend(); ++kept) {
        if (kept->id >= m_nextBelow || kept->id == m_shown)
            continue;
        const UndoState state = kept->state.state();
        if (shown.text.equals(state.text))
            continue;
        const qint64 id = kept->id;
        if (const auto now = shownState(); now == m_states.end())
            leave(ring, shown, Place::Ahead);
        else if (m_offered)
            renew(ring, now, now->place);
        m_offered.reset();
        showKept(id);
        m_nextBelow = id;
        return state;
    }
    m_nextBelow = fromTheLatest;
    return std::nullopt;
}

void KeptStates::showKept(qint64 id)
{
    m_shown = id;
    if (shownState() == m_states.end()) { // it had to make room
        m_shown = noId;
        m_isSafe = false;
    }
}

bool KeptStates::encodePending(qsizetype characters)
{
    const auto isWaiting = [](const Kept &kept) { return kept.state.isWaiting(); };
    const auto oldest = std::find_if(m_states.begin(), m_states.end(), isWaiting);
    if (oldest == m_states.end())
        return false;
    oldest->state.encode(characters);
    return std::any_of(oldest, m_states.end(), isWaiting);
}

KeptStates::States::iterator KeptStates::shownState()
{
    return std::find_if(m_states.begin(), m_states.end(),
                        [this](const Kept &kept) { return kept.id == m_shown; });
}

KeptStates::States::const_iterator KeptStates::next(Place place) const
{
    const auto last = std::find_if(m_states.rbegin(), m_states.rend(), [&](const Kept &kept) {
        return kept.place == place && kept.id != m_shown;
    });
    return last == m_states.rend() ? m_states.end() : std::prev(last.base());
}

void KeptStates::add(const UndoStore &ring, HeldState state, Place place)
{
    m_states.push_back({++m_lastId, place, ring.depth(), ring.snapshotCount(), std::move(state)});
    dropOldest();
}

// Where neither undo nor redo finds it, and bringBack last.
void KeptStates::addOldest(const UndoStore &ring, HeldState state)
{
    const qint64 id = m_states.empty() ? ++m_lastId : m_states.front().id - 1;
    m_states.push_front({id, Place::Aside, ring.depth(), ring.snapshotCount(), std::move(state)});
    dropOldest();
}

// Takes no memory: what is kept stays kept.
void KeptStates::renew(const UndoStore &ring, States::iterator kept, Place place)
{
    std::rotate(kept, std::next(kept), m_states.end());
    Kept &latest = m_states.back();
    latest.id = ++m_lastId;
    latest.place = place;
    latest.depth = ring.depth();
    latest.snapshots = ring.snapshotCount();
    dropOldest();
}

// What is shown comes to lie at the place, unless a step of the ring shows it again.
void KeptStates::leave(const UndoStore &ring, const UndoState &shown, Place place)
{
    m_nextBelow = fromTheLatest;
    const bool wasSafe = isShownSafe(ring);
    const bool hasSteps = ring.CanUndo() || ring.CanRedo();
    const auto isInRing = [&] {
        return hasSteps && ring.holdsText(ring.UndoCurrent(), shown.text);
    };
    if (const auto kept = shownState(); kept != m_states.end()) {
        renew(ring, kept, place);
        m_shown = m_lastId;
    } else if (!wasSafe && !isInRing()) {
        add(ring, HeldState(shown), place);
        m_shown = m_lastId;
    } else if (m_offered && (!wasSafe || m_isFromOldSlot)) {
        addOldest(ring, HeldState(*m_offered));
    }
    m_offered.reset();
    setSafe(ring, false);
}

void KeptStates::moveAside(Place place, qint64 fromDepth)
{
    for (Kept &kept : m_states) {
        if (kept.place == place && kept.depth >= fromDepth)
            kept.place = Place::Aside;
    }
}

qsizetype KeptStates::bytes() const
{
    return std::accumulate(
        m_states.begin(), m_states.end(), qsizetype(0),
        [](qsizetype sum, const Kept &kept) { return sum + kept.state.bytes(); });
}

// First the plain texts beside those that are encoded.
void KeptStates::dropOldest()
{
    if (bytes() > m_mostBytes)
        std::for_each(m_states.begin(), std::prev(m_states.end()),
                      [](Kept &kept) { kept.state.dropPlainText(); });
    qsizetype left = bytes();
    while (m_states.size() > 1 && (m_states.size() > most || left > m_mostBytes)) {
        left -= m_states.front().state.bytes();
        if (m_states.front().id == m_shown) {
            m_shown = noId;
            m_isSafe = false;
        }
        m_states.pop_front();
    }
}

} // namespace ORVTListview
