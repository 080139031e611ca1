#include "widgets/box/UserEditing.h"

#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

bool mayUserEdit(const RichTextBox &box)
{
    return !box.isReadOnly() && box.isEnabled();
}

} // namespace ORVTListview
