#pragma once

class QString;

namespace ORVTListview {

class RichTextBox;

// "Row: 3, Col: 7" of a box's caret, or of where its selection starts, from 1.
QString positionDisplay(const RichTextBox &box);

} // namespace ORVTListview
