#pragma once

#include "base/SharedText.h"

#include <memory>

namespace ORVTListview {

namespace ModZlib {
class SlicedCompressor;
}

// A slot of the undo ring is a text: a marker and a joined record. "*" says that the
// record is compressed, "%" that it is as it was. Records of 400 characters and
// more are compressed, unless the 8-bit code page lacks one of their characters
// or they are longer than what can be compressed.

inline constexpr qsizetype shortestCompressedRecord = 400;

// Raises Error when zlib fails.
QString encodeUndoSlot(const QString &record);

// The joined record; an empty slot yields an empty one. Raises Error as
// UncompressString does.
QString decodeUndoSlot(const QString &slot);

// Encodes one record that is long enough to be compressed, in steps.
class UndoSlotEncoder
{
public:
    enum class Progress {
        Going,
        Done,
        Impossible, // to compress: the record stays as it is
    };

    // The record's text, and what follows it in the joined record. Raises Error and
    // std::bad_alloc, here and below.
    UndoSlotEncoder(const SharedText &text, const QString &tail);
    ~UndoSlotEncoder();
    Q_DISABLE_COPY_MOVE(UndoSlotEncoder) // so is its compressor

    // Takes so many more characters of the text, at least 1.
    Progress advance(qsizetype characters);

    // Once, when done.
    QString slot() const { return m_slot; }

private:
    SharedText m_text;
    QString m_tail;
    std::unique_ptr<ModZlib::SlicedCompressor> m_compressor;
    qsizetype m_taken = 0;
    QString m_slot;
};

} // namespace ORVTListview
