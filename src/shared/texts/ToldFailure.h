#pragma once

#include "base/Failure.h"
#include "shared/texts/TextTable.h"

#include <utility>

namespace ORVTListview {

// For members with ErrMsg, which never fail otherwise: what the call throws is told there
// in the user's language.
template <typename Call>
void tellingFailure(QString &ErrMsg, Call &&call)
{
    const QString failure = failureOf(std::forward<Call>(call));
    if (failure.isEmpty())
        return;
    ErrMsg = failure;
    failureOf([&] { ErrMsg = Localise(failure); }); // which may fail as the call did
}

} // namespace ORVTListview
