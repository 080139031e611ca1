#pragma once

#include <ORVTListview/LateCall.h>

// Calls as a host makes them that knows names only.
namespace ObjectCalls {

// A failure is a warning, which fails the test.
inline QVariant call(QVariant object, const QString &member, QVariantList arguments = {})
{
    QVariant result;
    const auto error = ORVTListview::callLate(object, member, arguments, result);
    if (error)
        qWarning("%s: %s", qPrintable(error->Source()), qPrintable(error->Description()));
    return result;
}

// 0, or the number of the error.
inline qint32 status(QVariant object, const QString &member, QVariantList arguments = {})
{
    QVariant result;
    const auto error = ORVTListview::callLate(object, member, arguments, result);
    return error ? error->Number() : ORVTListview::CallSucceeded;
}

} // namespace ObjectCalls
