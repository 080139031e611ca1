#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/EventSink.h>
#include <ORVTListview/MemberTable.h>

#include <QtCore/QVariantList>

#include <optional>

namespace ORVTListview {

// What a late-bound call returns besides the numbers of the errors that members
// raise, of which none is equal to one of these.
enum CallStatus : qint32 {
    CallSucceeded = 0,
    UnknownMember = -2147352570,
    WrongArgumentType = -2147352571,  // one cannot be converted
    WrongArgumentCount = -2147352562, // also: a property that cannot be set, or read
    UnexpectedFailure = -2147467259,  // the member failed with what is no Error
};

// Calls the method, or reads the property (no argument) or sets it (one). The
// error, with a CallStatus or the number that the member raised; none when it went
// well. Arguments and result change only then. Records and lists of records may be given
// as QVariantMap, by the names of their fields, which may be left out; what is returned
// converts to one.
ORVT_CORE_EXPORT std::optional<Error> callLate(QObject &component, const MemberTable &members,
                                               const QString &name, QVariantList &arguments,
                                               QVariant &result);

// The same of what a late-bound call has handed out: a component, a row, a column, a node,
// their collections, the data of a drag, a list of points, ... by pointer, or a
// KeyedCollection by value, which the call may change. ObjectNotSet for a null pointer,
// UnknownMember for what has no members. An object that is gone is the caller's to know of.
ORVT_CORE_EXPORT std::optional<Error> callLate(QVariant &object, const QString &name,
                                               QVariantList &arguments, QVariant &result);

// The members of what is in there; of a QObject those of its own class, or of the nearest
// base that has any. Null for what has none.
ORVT_CORE_EXPORT const MemberTable *membersOf(const QVariant &object);
ORVT_CORE_EXPORT const MemberTable *membersOf(QMetaType type);

// Every type that has members, in the order of their classes' names.
ORVT_CORE_EXPORT QList<QMetaType> typesWithMembers();

// Has the events of such an object, of a class with numbered events, delivered to the
// sink until it is unadvised or either is gone. False for what raises none.
ORVT_CORE_EXPORT bool advise(const QVariant &object, EventSink *sink);
ORVT_CORE_EXPORT void unadvise(const QVariant &object, EventSink *sink);

} // namespace ORVTListview
