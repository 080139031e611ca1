// The undo store's check of its own state.

#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStore.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

bool isIndex(qint16 index)
{
    return index >= 0 && index < UndoStore::slotCount;
}

// A length without leading zeros, a colon, bytes that begin like a zlib stream.
bool isCompressedForm(QStringView text)
{
    const qsizetype colon = text.indexOf(u':');
    bool isNumber = false;
    const qint32 length = text.first(qMax<qsizetype>(colon, 0)).toInt(&isNumber);
    return isNumber && length >= shortestCompressedRecord &&
           QString::number(length) == text.first(colon) && text.mid(colon + 1).startsWith(u'x');
}

QString encodedFault(QStringView slot)
{
    if (slot.startsWith(u'*'))
        return isCompressedForm(slot.mid(1)) ? QString() : u"is not well compressed"_s;
    return slot.startsWith(u'%') ? QString() : u"has no marker"_s;
}

} // namespace

QString UndoStore::unsoundness() const
{
    if (QString fault = indexFault(); !fault.isEmpty())
        return fault;
    for (qint16 index = 0; index < slotCount; ++index) {
        if (const QString fault = slotFault(index); !fault.isEmpty())
            return u"Slot %1 %2"_s.arg(QString::number(index), fault);
    }
    if (pendingBytes() > m_pendingBound)
        return u"More waits to be encoded than may"_s;
    return QString();
}

QString UndoStore::indexFault() const
{
    if (!isIndex(m_oldest) || !isIndex(m_newest) || !isIndex(m_current))
        return u"An index is outside the ring"_s;
    if (m_wrapped)
        return m_oldest == (m_newest + 1) % slotCount
                   ? QString()
                   : u"The ring has wrapped and its oldest slot is not behind its newest"_s;
    if (m_oldest != 0)
        return u"The ring has not wrapped and its oldest slot is not 0"_s;
    return m_current <= m_newest ? QString() : u"The current slot lies ahead of the newest"_s;
}

QString UndoStore::slotFault(qint16 index) const
{
    const Slot &slot = slotAt(index);
    if (isEncoding(index) && !waitingAt(index))
        return u"is being encoded and does not wait for it"_s;
    if (const auto *plain = std::get_if<PlainSlot>(&slot)) {
        const bool isShort = plain->text.size() + plain->tail.size() < shortestCompressedRecord;
        if (plain->isWaiting && isShort)
            return u"waits to be encoded and is too short"_s;
        if (plain->isWaiting && !plain->encoded.isEmpty())
            return u"waits to be encoded and is"_s;
        return plain->encoded.isEmpty() ? QString() : encodedFault(plain->encoded);
    }
    const auto &encoded = std::get<QString>(slot);
    if (!encoded.isEmpty())
        return encodedFault(encoded);
    const bool isWritten = m_wrapped || (index > 0 && index <= m_newest);
    return isWritten ? u"is empty"_s : QString();
}

} // namespace ORVTListview
