#pragma once

namespace ORVTListview {

class RichTextBox;

// Whether the user may change a box's text. Every way in asks here: keys, menus, mouse,
// input method, word list and dialogs; calls of the host do not.
bool mayUserEdit(const RichTextBox &box);

} // namespace ORVTListview
