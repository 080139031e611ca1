#include "find/ShownFailure.h"

#include "base/Failure.h"
#include "base/MessageService.h"
#include "base/ThreadState.h"
#include "shared/texts/TextTable.h"

namespace ORVTListview {

void runShowingFailure(const std::function<void()> &action)
{
    const QString failure = failureOf(action);
    if (!failure.isEmpty())
        threadPart<Messages>().service().show({Message::Icon::Exclamation,
                                               Localise(QStringLiteral("Find - Replace")),
                                               Localise(failure)});
}

} // namespace ORVTListview
