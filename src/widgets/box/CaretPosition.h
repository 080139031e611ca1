#pragma once

#include <QtCore/QtGlobal>

class QString;

namespace ORVTListview {

class RichTextBox;

// Counted from 1.
struct CaretPosition
{
    qint32 row = 1;
    qint32 column = 1;
};

// Of a box's caret, or of where its selection starts.
CaretPosition caretPosition(const RichTextBox &box);

// "Row: 3, Col: 7".
QString positionDisplay(const CaretPosition &position);

} // namespace ORVTListview
