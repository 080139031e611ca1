#include "editor/CodeViewParts.h"

#include "editor/ProgramCommands.h"
#include <ORVTListview/RichTextBox.h>

#include <initializer_list>

namespace ORVTListview {

CodeViewParts::CodeViewParts(RichTextBox &editorBox, const ProgramCommands &programCommands)
    : box(&editorBox)
    , layers(BoxLayers::of(editorBox))
    , margin(new EditorMargin(editorBox, layers))
    , scrollMarks(new ScrollMarks(editorBox))
    , problems(editorBox, layers)
    , bookmarks(editorBox)
    , hostMarks(editorBox)
    , numbers(editorBox, *margin, layers)
    , marks(editorBox, *margin, {numbers, problems, bookmarks, hostMarks})
    , folds(editorBox, *margin, layers)
    , currentLine(currentLineLayer(editorBox, layers))
    , wordUses(wordUseLayer(editorBox, layers))
    , pairs(pairLayer(editorBox, layers))
    , indentGuides(editorBox, layers)
    , blanks(editorBox, layers, LineLayer::blankMarks())
    , zoom(editorBox, layers)
    , liveValues(editorBox, layers)
    , hover(editorBox, layers, problems)
    , commands(programCommands)
    , commandsState(editorBox)
    , caretLine(editorBox, {numbers, folds, problems, hostMarks, liveValues})
    , found(editorBox, layers)
    , readableColours(editorBox, layers)
{
    margin->addColumn(marks);
    margin->addColumn(numbers);
    margin->addColumn(folds);
    scrollMarks->addSource([this] { return found.marks(); });
    scrollMarks->addSource([this] { return bookmarks.marks(); });
    scrollMarks->addSource([this] { return problems.marks(); });
    QObject::connect(&commands.moves, &LineMoves::about, &problems, &Problems::holdLines);
    QObject::connect(&commands.moves, &LineMoves::done, &problems, &Problems::putBack);
    QObject::connect(&commands.moves, &LineMoves::settled, &problems, &Problems::tellMoved);
    QObject::connect(&commands.moves, &LineMoves::about, &folds, &Folds::holdLines);
    QObject::connect(&commands.moves, &LineMoves::settled, &folds, &Folds::putBack);
    for (KeptLines *lines : std::initializer_list<KeptLines *>{&bookmarks, &hostMarks}) {
        QObject::connect(&commands.moves, &LineMoves::about, lines, &KeptLines::holdLines);
        QObject::connect(&commands.moves, &LineMoves::done, lines, &KeptLines::putBack);
        QObject::connect(&commands.moves, &LineMoves::settled, lines, &KeptLines::tellMoved);
    }
    QObject::connect(&problems, &Problems::changed, scrollMarks, &ScrollMarks::refresh);
    QObject::connect(&bookmarks, &Bookmarks::changed, scrollMarks, &ScrollMarks::refresh);
    QObject::connect(&found, &FoundMarks::marksChanged, scrollMarks, &ScrollMarks::refresh);
}

CodeViewParts::~CodeViewParts()
{
    delete margin; // it knows the columns
    delete scrollMarks;
    delete goToLineBar;
    delete findBar;
}

} // namespace ORVTListview
