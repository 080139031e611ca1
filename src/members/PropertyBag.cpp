#include <ORVTListview/PropertyBag.h>

namespace ORVTListview {

PropertyBag::~PropertyBag() = default;

} // namespace ORVTListview
