#include "widgets/box/BoxCommands.h"

namespace ORVTListview {

BoxCommands::~BoxCommands() = default;

} // namespace ORVTListview
