#include "editor/rules/undo/HeldState.h"

#include "editor/rules/undo/UndoSlot.h"
#include <ORVTListview/Error.h>

#include <new>
#include <utility>

namespace ORVTListview {

HeldState::HeldState(const UndoState &state)
    : m_plain(state)
    , m_isWaiting(state.text.size() >= shortestCompressedRecord)
{
}

HeldState::HeldState(const QString &encodedSlot)
    : m_slot(encodedSlot)
{
}

HeldState::HeldState(HeldState &&other) noexcept = default;
HeldState &HeldState::operator=(HeldState &&other) noexcept = default;
HeldState::~HeldState() = default;

UndoRecord HeldState::record() const
{
    return m_slot.isEmpty() ? m_plain.record() : joinedUndoRecord(decodeUndoSlot(m_slot));
}

qsizetype HeldState::bytes() const
{
    return (m_plain.text.size() + m_slot.size()) * qsizetype{sizeof(QChar)};
}

void HeldState::encode(qsizetype characters)
{
    using Progress = UndoSlotEncoder::Progress;
    Progress progress = Progress::Impossible;
    try {
        if (!m_encoder)
            m_encoder = std::make_unique<UndoSlotEncoder>(m_plain.text, undoRecordTail(m_plain));
        progress = m_encoder->advance(characters);
    } catch (const Error &) {
    } catch (const std::bad_alloc &) {
    }
    if (progress == Progress::Going)
        return;
    if (progress == Progress::Done) {
        m_slot = m_encoder->slot();
        m_plain = {};
    }
    m_isWaiting = false;
    m_encoder.reset();
}

} // namespace ORVTListview
