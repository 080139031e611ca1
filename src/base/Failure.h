#pragma once

#include <ORVTListview/Error.h>

#include <QtCore/QString>

#include <exception>
#include <utility>

namespace ORVTListview {

// The description of what the call throws; empty when it throws nothing.
template <typename Call>
QString failureOf(Call &&call)
{
    try {
        std::forward<Call>(call)();
    } catch (const Error &error) {
        return error.Description();
    } catch (const std::exception &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

} // namespace ORVTListview
