#include "editor/UndoSlot.h"

#include "shared/Compression.h"
#include "shared/SlicedCompressor.h"

namespace ORVTListview {
namespace {

constexpr QChar compressedMarker = u'*';
constexpr QChar plainMarker = u'%';

} // namespace

QString encodeUndoSlot(const UndoRecord &record)
{
    const QString text = joinUndoRecord(record);
    if (text.size() >= shortestCompressedRecord && ModZlib::canCompress(text))
        return compressedMarker + ModZlib::CompressString(text);
    return plainMarker + text;
}

QString decodeUndoSlot(const QString &slot)
{
    const QString record = slot.mid(1);
    return slot.startsWith(compressedMarker) ? ModZlib::UncompressString(record) : record;
}

UndoSlotEncoder::UndoSlotEncoder(const UndoRecord &record)
    : m_record(record)
    , m_compressor(std::make_unique<ModZlib::SlicedCompressor>(undoRecordLength(record)))
{
}

UndoSlotEncoder::~UndoSlotEncoder() = default;

UndoSlotEncoder::Progress UndoSlotEncoder::advance(qsizetype characters)
{
    const QStringView slice = QStringView(m_record.text).mid(m_taken, characters);
    if (!m_compressor->add(slice))
        return Progress::Impossible;
    m_taken += slice.size();
    if (m_taken < m_record.text.size())
        return Progress::Going;
    m_compressor->add(undoRecordTail(m_record));
    m_slot = compressedMarker + m_compressor->finish();
    return Progress::Done;
}

} // namespace ORVTListview
