#pragma once

namespace ORVTListview {

// Has boxes told to assistive programs as BoxTextAccess does. Once is enough; more do no harm.
void installBoxAccess();

} // namespace ORVTListview
