#include "editor/rules/undo/UndoSlot.h"

#include "shared/compression/Compression.h"
#include "shared/compression/SlicedCompressor.h"

namespace ORVTListview {
namespace {

constexpr QChar compressedMarker = u'*';
constexpr QChar plainMarker = u'%';

} // namespace

QString encodeUndoSlot(const QString &record)
{
    if (record.size() >= shortestCompressedRecord && ModZlib::canCompress(record))
        return compressedMarker + ModZlib::CompressString(record);
    return plainMarker + record;
}

QString decodeUndoSlot(const QString &slot)
{
    const QString record = slot.mid(1);
    return slot.startsWith(compressedMarker) ? ModZlib::UncompressString(record) : record;
}

UndoSlotEncoder::UndoSlotEncoder(const SharedText &text, const QString &tail)
    : m_text(text)
    , m_tail(tail)
    , m_compressor(std::make_unique<ModZlib::SlicedCompressor>(text.size() + tail.size()))
{
}

UndoSlotEncoder::~UndoSlotEncoder() = default;

UndoSlotEncoder::Progress UndoSlotEncoder::advance(qsizetype characters)
{
    while (characters > 0 && m_taken < m_text.size()) {
        const QStringView slice = m_text.behind(m_taken, characters);
        if (!m_compressor->add(slice))
            return Progress::Impossible;
        m_taken += slice.size();
        characters -= slice.size();
    }
    if (m_taken < m_text.size())
        return Progress::Going;
    m_compressor->add(m_tail);
    m_slot = compressedMarker + m_compressor->finish();
    return Progress::Done;
}

} // namespace ORVTListview
