#include "editor/rules/undo/HeldState.h"

#include "editor/rules/undo/UndoSlot.h"
#include <ORVTListview/Error.h>

#include <new>
#include <utility>

namespace ORVTListview {

HeldState::HeldState(const UndoState &state, const QString &encodedSlot)
    : m_plain(state)
    , m_slot(encodedSlot)
    , m_isWaiting(m_slot.isEmpty() && state.text.size() >= shortestCompressedRecord)
{
}

HeldState::HeldState(const QString &encodedSlot)
    : m_slot(encodedSlot)
{
}

HeldState::HeldState(HeldState &&other) noexcept = default;
HeldState &HeldState::operator=(HeldState &&other) noexcept = default;
HeldState::~HeldState() = default;

UndoState HeldState::state() const
{
    return m_plain ? *m_plain : joinedUndoRecord(decodeUndoSlot(m_slot));
}

qsizetype HeldState::bytes() const
{
    const qsizetype plain = m_plain ? m_plain->text.size() : 0;
    return (plain + m_slot.size()) * qsizetype{sizeof(QChar)};
}

void HeldState::dropPlainText()
{
    if (!m_slot.isEmpty())
        m_plain.reset();
}

void HeldState::encode(qsizetype characters)
{
    using Progress = UndoSlotEncoder::Progress;
    Progress progress = Progress::Impossible;
    try {
        if (!m_encoder)
            m_encoder = std::make_unique<UndoSlotEncoder>(m_plain->text, undoRecordTail(*m_plain));
        progress = m_encoder->advance(characters);
    } catch (const Error &) {
    } catch (const std::bad_alloc &) {
    }
    if (progress == Progress::Going)
        return;
    if (progress == Progress::Done)
        m_slot = m_encoder->slot();
    m_isWaiting = false;
    m_encoder.reset();
}

} // namespace ORVTListview
