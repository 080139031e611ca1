#pragma once

#include "editor/rules/undo/UndoRecord.h"

#include <memory>
#include <optional>

namespace ORVTListview {

class UndoSlotEncoder;

// One state of an editor, held as a slot of the undo ring is: plain at first, sharing
// its text with whoever gave it, and encoded later, slice by slice. Then its text stays
// beside that until it is dropped.
class HeldState
{
public:
    explicit HeldState(const UndoState &state, const QString &encodedSlot = {});
    explicit HeldState(const QString &encodedSlot);
    HeldState(HeldState &&other) noexcept;
    HeldState &operator=(HeldState &&other) noexcept;
    ~HeldState();

    // Raises Error when it was encoded and is damaged.
    UndoState state() const;

    bool isWaiting() const { return m_isWaiting; } // to be encoded
    qsizetype bytes() const;

    // Nothing unless it is encoded.
    void dropPlainText();

    // Takes the encoding so many characters further. Never raises anything: what
    // cannot be encoded stays plain.
    void encode(qsizetype characters);

private:
    std::optional<UndoState> m_plain;
    QString m_slot; // empty until it is encoded
    bool m_isWaiting = false;
    std::unique_ptr<UndoSlotEncoder> m_encoder;
};

} // namespace ORVTListview
