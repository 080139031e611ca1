#pragma once

#include <ORVTListview/Error.h>

#include <QtCore/QString>

#include <exception>
#include <utility>

namespace ORVTListview {

// Runs what a host has written. Whatever it throws leaves as Error: its own as it is,
// anything else as one of this source.
template <typename Call>
decltype(auto) raisingErrors(const QString &source, Call &&call)
{
    try {
        return std::forward<Call>(call)();
    } catch (const Error &) {
        throw;
    } catch (const std::exception &error) {
        throw Error(InvalidCall, source, QString::fromUtf8(error.what()));
    } catch (...) {
        throw Error(InvalidCall, source, QStringLiteral("Unknown failure"));
    }
}

// The description of what the call throws, which may be that there is no memory; empty
// when it throws nothing.
template <typename Call>
QString failureOf(Call &&call)
{
    QString description;
    try {
        std::forward<Call>(call)();
        return {};
    } catch (const Error &error) {
        description = error.Description();
    } catch (const std::exception &error) {
        description = QString::fromUtf8(error.what());
    } catch (...) {
    }
    return description.isEmpty() ? QStringLiteral("Unknown failure") : description;
}

} // namespace ORVTListview
