#include "editor/CodeViewParts.h"

#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

CodeViewParts::CodeViewParts(RichTextBox &editorBox)
    : box(&editorBox)
    , layers(BoxLayers::of(editorBox))
    , margin(new EditorMargin(editorBox, layers))
    , numbers(editorBox, *margin, layers)
    , currentLine(editorBox, layers)
    , wordUses(editorBox, layers)
    , pairs(editorBox, layers)
{
}

CodeViewParts::~CodeViewParts()
{
    delete margin; // it knows the columns
}

} // namespace ORVTListview
