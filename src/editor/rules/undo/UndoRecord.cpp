#include "editor/rules/undo/UndoRecord.h"

#include <ORVTListview/Error.h>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(ErrorNumber number, const QString &description)
{
    throw Error(number, u"splitUndoRecord"_s, description);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

qint32 selectionNumber(QStringView field)
{
    const QStringView number = field.trimmed();
    const bool isSigned = number.startsWith(u'-') || number.startsWith(u'+');
    const QStringView digits = number.mid(isSigned ? 1 : 0);
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit))
        refuse(TypeMismatch, u"The undo snapshot's selection is not a number"_s);
    bool isRead = false;
    const qint32 value = number.toInt(&isRead);
    if (!isRead)
        refuse(Overflow, u"The undo snapshot's selection is too large a number"_s);
    return value;
}

} // namespace

bool mayHoldUndoSeparator(const SharedText &text)
{
    constexpr qsizetype longest = 0x100000;
    constexpr qsizetype signs = 6;
    qsizetype inARow = 0;
    for (qsizetype place = 0; place < text.size();) {
        const QStringView piece = text.behind(place, longest);
        const qsizetype sign = piece.indexOf(u'%');
        inARow = sign == 0 ? inARow + 1 : sign > 0 ? 1 : 0;
        if (inARow == signs)
            return true;
        place += sign < 0 ? piece.size() : sign + 1;
    }
    return false;
}

QString undoRecordTail(const UndoState &state)
{
    QString tail = UndoRecordSeparator.toString();
    tail += QString::number(state.selectionStart);
    tail += UndoRecordSeparator;
    tail += QString::number(state.selectionLength);
    return tail;
}

QString joinUndoRecord(const UndoRecord &record)
{
    return record.text + undoRecordTail(record);
}

UndoRecord splitUndoRecord(const QString &record)
{
    constexpr qsizetype separatorLength = UndoRecordSeparator.size();
    const qsizetype first = record.indexOf(UndoRecordSeparator);
    const qsizetype startField = first + separatorLength;
    const qsizetype second = first < 0 ? -1 : record.indexOf(UndoRecordSeparator, startField);
    if (second < 0)
        refuse(SubscriptOutOfRange, u"The undo snapshot has fewer than three fields"_s);
    const qsizetype lengthField = second + separatorLength;
    if (record.indexOf(UndoRecordSeparator, lengthField) >= 0)
        refuse(InvalidCall, u"The undo snapshot's text holds the separator of its fields"_s);
    const QStringView view(record);
    const qint32 start = selectionNumber(view.mid(startField, second - startField));
    const qint32 length = selectionNumber(view.mid(lengthField));
    return {record.first(first), start, length};
}

UndoRecord joinedUndoRecord(const QString &record)
{
    const qsizetype second = record.lastIndexOf(UndoRecordSeparator);
    const qsizetype latest = second - UndoRecordSeparator.size();
    const qsizetype first = latest < 0 ? -1 : record.lastIndexOf(UndoRecordSeparator, latest);
    if (first < 0)
        return splitUndoRecord(record); // which says what is wrong
    UndoRecord fields = splitUndoRecord(record.sliced(first));
    fields.text = record.first(first);
    return fields;
}

} // namespace ORVTListview
