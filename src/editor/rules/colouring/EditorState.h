#pragma once

#include <ORVTListview/Types.h>

namespace ORVTListview {

// What the last Init_RichTextBox on a thread left for all its editors.
struct EditorState
{
    RichTextSettings EditorSettings;
    QString RtfHeader;     // empty before the first Init_RichTextBox
    qint32 LineHeight = 0; // pixels, of one line in the editor's font
};

} // namespace ORVTListview
