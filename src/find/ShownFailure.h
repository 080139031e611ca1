#pragma once

#include <functional>

namespace ORVTListview {

// Carries out an action of finding and replacing. Its failure goes to the user.
void runShowingFailure(const std::function<void()> &action);

} // namespace ORVTListview
