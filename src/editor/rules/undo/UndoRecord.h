#pragma once

#include "base/HouseExport.h"
#include "base/SharedText.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace ORVTListview {

// What one snapshot holds: the editor's plain text, and its selection in 0-based
// positions of UTF-16 units. Line ends (CR LF) count two.
struct UndoRecord
{
    QString text;
    qint32 selectionStart = 0;
    qint32 selectionLength = 0;

    friend bool operator==(const UndoRecord &, const UndoRecord &) = default;
};

// The same, with a text that it may have in common with other states.
struct UndoState
{
    UndoState() = default;
    UndoState(const SharedText &shared, qint32 start, qint32 length)
        : text(shared)
        , selectionStart(start)
        , selectionLength(length)
    {
    }
    UndoState(const QString &string, qint32 start, qint32 length)
        : UndoState(SharedText(string), start, length)
    {
    }
    UndoState(const UndoRecord &record)
        : UndoState(record.text, record.selectionStart, record.selectionLength)
    {
    }
    UndoRecord record() const { return {text.toString(), selectionStart, selectionLength}; }

    SharedText text;
    qint32 selectionStart = 0;
    qint32 selectionLength = 0;
};

// Stands between the three fields of a record that is written as one text.
inline constexpr QStringView UndoRecordSeparator = u"\r\n%%%%%%\r\n";

// Whether a text may hold one, be it together with what follows it in a record. Quick:
// programs hardly ever have what is looked for.
bool mayHoldUndoSeparator(const SharedText &text);

// The record as one text is its text followed by this: a separator, the start, a
// separator, the length.
QString undoRecordTail(const UndoState &state);

QString joinUndoRecord(const UndoRecord &record);

// All three fields are checked before any is handed out. Raises Error when a
// field is missing (SubscriptOutOfRange), when the text itself holds a separator
// so that the fields cannot be told apart (InvalidCall), when a selection field
// is no decimal integer (TypeMismatch) or needs more than 32 bits (Overflow).
// Blanks around a number are passed over: a slot whose length was raised by damage
// ends in some. Whether the selection lies within the text is not checked.
UndoRecord splitUndoRecord(const QString &record);

// The same of a record that joinUndoRecord made: its text may hold separators, since
// nothing behind the last two can.
ORVT_HOUSE_EXPORT UndoRecord joinedUndoRecord(const QString &record);

} // namespace ORVTListview
