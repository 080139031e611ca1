#pragma once

namespace ORVTListview {

// Shows the whole application on a dark ground.
void useDarkColours();

} // namespace ORVTListview
