#include "editor/rules/undo/UndoStore.h"

#include "editor/rules/undo/HeldState.h"
#include "editor/rules/undo/UndoSlot.h"
#include <ORVTListview/Error.h>

#include <algorithm>
#include <limits>
#include <new>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 following(qint16 index)
{
    return static_cast<qint16>((index + 1) % UndoStore::slotCount);
}

constexpr qint16 preceding(qint16 index)
{
    return static_cast<qint16>(index == 0 ? UndoStore::slotCount - 1 : index - 1);
}

} // namespace

UndoStore::UndoStore(qsizetype pendingBound)
    : m_pendingBound(pendingBound)
{
}

UndoStore::~UndoStore() = default;

const UndoStore::Slot &UndoStore::slotAt(qint16 index) const
{
    if (index < 0 || index >= slotCount)
        throw Error(SubscriptOutOfRange, u"UndoSlots"_s, u"There is no such undo slot"_s);
    return m_slots[static_cast<std::size_t>(index)];
}

UndoStore::Slot &UndoStore::slotAt(qint16 index)
{
    return const_cast<Slot &>(std::as_const(*this).slotAt(index));
}

QString UndoStore::UndoSlots(qint16 index) const
{
    const Slot &slot = slotAt(index);
    const auto *plain = std::get_if<PlainSlot>(&slot);
    if (!plain)
        return std::get<QString>(slot);
    return plain->encoded.isEmpty() ? encodeUndoSlot(plain->record()) : plain->encoded;
}

void UndoStore::setUndoSlot(qint16 index, const QString &slot)
{
    put(index, slot);
}

qint16 UndoStore::NextUndoSlot()
{
    m_current = following(m_current);
    if (m_current == 0)
        m_wrapped = true;
    m_newest = m_current;
    if (m_wrapped)
        m_oldest = following(m_newest);
    ++m_depth;
    ++m_snapshotCount;
    return m_current;
}

void UndoStore::StoreUndoSnapshot(const UndoState &state)
{
    PlainSlot slot = plainSlot(state); // what may fail comes before the ring moves
    put(NextUndoSlot(), std::move(slot));
    keepWithinBound();
}

QString UndoStore::FetchUndoSnapshot(qint16 index) const
{
    const Slot &slot = slotAt(index);
    const auto *plain = std::get_if<PlainSlot>(&slot);
    return plain ? plain->record() : decodeUndoSlot(std::get<QString>(slot));
}

std::optional<UndoState> UndoStore::FetchUndoState(qint16 index) const
{
    const auto *plain = std::get_if<PlainSlot>(&slotAt(index));
    if (plain && !mayHoldUndoSeparator(plain->text)) {
        const UndoRecord selection = joinedUndoRecord(plain->tail);
        return UndoState(plain->text, selection.selectionStart, selection.selectionLength);
    }
    const QString record = FetchUndoSnapshot(index);
    if (record.isEmpty())
        return std::nullopt;
    return splitUndoRecord(record);
}

void UndoStore::ResetUndoBase(const QString &text)
{
    put(0, plainSlot({text, 0, 0}));
    keepWithinBound();
}

void UndoStore::ClearUndoHistory()
{
    m_encoder.reset();
    m_slots.fill(QString());
    m_oldest = m_newest = m_current = 0;
    m_wrapped = false;
    m_depth = 0;
    ++m_snapshotCount; // nobody's text is in the ring any more
}

bool UndoStore::CanUndo() const
{
    return m_oldest != m_newest && m_current != m_oldest;
}

bool UndoStore::CanRedo() const
{
    return m_oldest != m_newest && m_current != m_newest;
}

std::optional<qint16> UndoStore::UndoStepBack()
{
    if (!CanUndo())
        return std::nullopt;
    m_current = preceding(m_current);
    --m_depth;
    return m_current;
}

std::optional<qint16> UndoStore::RedoStepForward()
{
    if (!CanRedo())
        return std::nullopt;
    m_current = following(m_current);
    ++m_depth;
    return m_current;
}

HeldState UndoStore::held(qint16 index) const
{
    const Slot &slot = slotAt(index);
    const auto *plain = std::get_if<PlainSlot>(&slot);
    if (!plain)
        return HeldState(std::get<QString>(slot));
    const UndoRecord selection = joinedUndoRecord(plain->tail);
    return HeldState({plain->text, selection.selectionStart, selection.selectionLength},
                     plain->encoded);
}

bool UndoStore::holdsText(qint16 index, const SharedText &text) const
{
    const Slot &slot = slotAt(index);
    if (const auto *plain = std::get_if<PlainSlot>(&slot))
        return plain->text.equals(text);
    try {
        return text.equals(SharedText(splitUndoRecord(FetchUndoSnapshot(index)).text));
    } catch (const Error &) {
        return false;
    }
}

void UndoStore::put(qint16 index, Slot slot)
{
    slotAt(index) = std::move(slot);
    if (isEncoding(index))
        m_encoder.reset();
}

UndoStore::PlainSlot UndoStore::plainSlot(const UndoState &state)
{
    PlainSlot slot{state.text, undoRecordTail(state), {}};
    slot.isWaiting = slot.text.size() + slot.tail.size() >= shortestCompressedRecord;
    return slot;
}

const UndoStore::PlainSlot *UndoStore::waitingAt(qint16 index) const
{
    const auto *plain = std::get_if<PlainSlot>(&slotAt(index));
    return plain && plain->isWaiting ? plain : nullptr;
}

bool UndoStore::isEncodingPending() const
{
    return oldestWaiting().has_value();
}

qsizetype UndoStore::pendingBytes() const
{
    qsizetype bytes = 0;
    SharedText::CountedStrings counted;
    SharedText before;
    for (int age = 0; age < slotCount - 1; ++age) {
        if (const PlainSlot *waiting = waitingAt(slotOfAge(age))) {
            bytes += waiting->text.bytes(counted, before);
            before = waiting->text;
        }
    }
    return bytes;
}

bool UndoStore::encodePending(qsizetype characters)
{
    const std::optional<qint16> oldest = oldestWaiting();
    if (oldest)
        encode(m_encoder ? m_encodedSlot : *oldest, characters);
    return isEncodingPending();
}

// Of those that are encoded.
qsizetype UndoStore::plainBytes() const
{
    qsizetype bytes = 0;
    SharedText::CountedStrings counted;
    SharedText before;
    for (int age = 0; age < slotCount; ++age) {
        const auto *plain = std::get_if<PlainSlot>(&slotAt(slotOfAge(age)));
        if (plain && !plain->encoded.isEmpty()) {
            bytes += plain->text.bytes(counted, before);
            before = plain->text;
        }
    }
    return bytes;
}

// The oldest first. For want of memory they stay until the next one is encoded.
void UndoStore::dropPlainTexts()
{
    try {
        for (int age = 0; age < slotCount && plainBytes() > m_pendingBound / 2; ++age) {
            const auto *plain = std::get_if<PlainSlot>(&slotAt(slotOfAge(age)));
            if (plain && !plain->encoded.isEmpty())
                put(slotOfAge(age), QString(plain->encoded));
        }
    } catch (const std::bad_alloc &) {
    }
}

// From the oldest, 0, to the newest slot. What lies ahead of the newest is either
// empty or the oldest there is.
qint16 UndoStore::slotOfAge(int age) const
{
    return static_cast<qint16>((m_newest + 1 + age) % slotCount);
}

std::optional<qint16> UndoStore::oldestWaiting() const
{
    for (int age = 0; age < slotCount; ++age) {
        if (waitingAt(slotOfAge(age)))
            return slotOfAge(age);
    }
    return std::nullopt;
}

std::optional<qint16> UndoStore::oldestNotCompared() const
{
    for (int age = 0; age < slotCount - 1; ++age) {
        const PlainSlot *waiting = waitingAt(slotOfAge(age));
        if (waiting && !waiting->isCompared)
            return slotOfAge(age);
    }
    return std::nullopt;
}

void UndoStore::encode(qint16 index, qsizetype characters)
{
    using Progress = UndoSlotEncoder::Progress;
    auto &slot = std::get<PlainSlot>(slotAt(index));
    Progress progress = Progress::Impossible;
    try {
        if (!isEncoding(index))
            m_encoder = std::make_unique<UndoSlotEncoder>(slot.text, slot.tail);
        m_encodedSlot = index;
        progress = m_encoder->advance(characters);
    } catch (const Error &) {
    } catch (const std::bad_alloc &) {
    }
    if (progress == Progress::Done) {
        slot.encoded = m_encoder->slot();
        slot.isWaiting = false;
        m_encoder.reset();
        dropPlainTexts();
    } else if (progress == Progress::Impossible) {
        m_encoder.reset();
        slot.isWaiting = false;
        share(index);
    }
}

void UndoStore::share(qint16 index)
{
    auto &slot = std::get<PlainSlot>(slotAt(index));
    slot.isCompared = true;
    const auto *before = std::get_if<PlainSlot>(&slotAt(preceding(index)));
    try {
        if (before)
            slot.text = slot.text.sharedWith(before->text);
    } catch (const std::bad_alloc &) {
    }
}

// For want of memory more waits than may, until the next snapshot: the state itself is
// stored.
void UndoStore::keepWithinBound()
{
    try {
        while (pendingBytes() > m_pendingBound) {
            if (const std::optional<qint16> index = oldestNotCompared())
                share(*index);
            else // the newest slot comes last, and its bytes are not counted
                encode(*oldestWaiting(), std::numeric_limits<qsizetype>::max());
        }
    } catch (const std::bad_alloc &) {
    }
}

} // namespace ORVTListview
