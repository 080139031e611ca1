#pragma once

#include "support/QtPrinters.h"
#include <ORVTListview/Error.h>

#include <optional>

// The error that a call raises; none when it raises none.
template <typename Call>
std::optional<ORVTListview::Error> raisedBy(Call call)
{
    try {
        call();
    } catch (const ORVTListview::Error &error) {
        return error;
    }
    return std::nullopt;
}
