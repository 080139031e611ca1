#pragma once

class QString;

namespace ORVTListview {

class RichTextBox;
class fFind;

// The find dialog that all editors of a thread share, made when it is first needed.
namespace FindDialog {

fFind &shared();

// Shows it modally, with no owner and under the usual mouse pointer, and returns
// once it is closed. Raises nothing: ErrMsg receives the description of a failure.
// When the dialog is shown so already, it goes over to this box at once.
void showModally(RichTextBox &box, bool isReplace, QString &ErrMsg);

// Shows it beside the box's window, which stays usable, and returns at once.
void showBeside(RichTextBox &box, bool isReplace);

// Shows it, if there is one, in the language in force.
void initStrings();

} // namespace FindDialog
} // namespace ORVTListview
