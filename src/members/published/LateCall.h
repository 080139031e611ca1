#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/Error.h>
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
// well. Arguments and result change only then.
ORVT_CORE_EXPORT std::optional<Error> callLate(QObject &component, const MemberTable &members,
                                               const QString &name, QVariantList &arguments,
                                               QVariant &result);

} // namespace ORVTListview
