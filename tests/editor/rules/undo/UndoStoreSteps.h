// What the tests of the undo ring do with it.

#pragma once

#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStore.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

inline UndoRecord numbered(int number)
{
    return {u"step %1"_s.arg(number), number, 0};
}

inline UndoRecord longRecord(qsizetype characters, QChar filler = u'x')
{
    return {QString(characters, filler), 1, 2};
}

inline void push(UndoStore &ring, int first, int last)
{
    for (int number = first; number <= last; ++number)
        ring.StoreUndoSnapshot(numbered(number));
}

// "oldest current newest", with a "w" once wrapped.
inline QString indices(const UndoStore &ring)
{
    return u"%1 %2 %3%4"_s.arg(ring.UndoOldest())
        .arg(ring.UndoCurrent())
        .arg(ring.UndoNewest())
        .arg(ring.UndoWrapped() ? u" w"_s : QString());
}

inline void encodeAll(UndoStore &ring)
{
    while (ring.encodePending()) {
    }
}

inline QString encodedSlot(const UndoRecord &record)
{
    return encodeUndoSlot(joinUndoRecord(record));
}

} // namespace ORVTListview
