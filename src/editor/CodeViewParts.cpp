#include "editor/CodeViewParts.h"

#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

CodeViewParts::CodeViewParts(RichTextBox &editorBox, const ProgramCommands &programCommands)
    : box(&editorBox)
    , layers(BoxLayers::of(editorBox))
    , margin(new EditorMargin(editorBox, layers))
    , scrollMarks(new ScrollMarks(editorBox))
    , problems(editorBox, layers)
    , bookmarks(editorBox)
    , numbers(editorBox, *margin, layers)
    , marks(editorBox, *margin, {numbers, problems, bookmarks})
    , folds(editorBox, *margin, layers)
    , currentLine(editorBox, layers)
    , wordUses(editorBox, layers)
    , pairs(editorBox, layers)
    , indentGuides(editorBox, layers)
    , blanks(editorBox, layers)
    , zoom(editorBox, layers)
    , commands(programCommands)
    , commandsState(editorBox)
    , caretLine(editorBox, {numbers, folds, problems})
    , found(editorBox, layers)
    , readableColours(editorBox, layers)
{
    margin->addColumn(marks);
    margin->addColumn(numbers);
    margin->addColumn(folds);
    scrollMarks->addSource([this] { return found.marks(); });
    scrollMarks->addSource([this] { return bookmarks.marks(); });
    scrollMarks->addSource([this] { return problems.marks(); });
    QObject::connect(&problems, &Problems::changed, scrollMarks, &ScrollMarks::refresh);
    QObject::connect(&bookmarks, &Bookmarks::changed, scrollMarks, &ScrollMarks::refresh);
    QObject::connect(&found, &FoundMarks::marksChanged, scrollMarks, &ScrollMarks::refresh);
}

CodeViewParts::~CodeViewParts()
{
    delete margin; // it knows the columns
    delete scrollMarks;
    delete findBar;
}

} // namespace ORVTListview
