#pragma once

#include "editor/CommandsState.h"
#include "editor/GoToLineBar.h"
#include "editor/view/Bookmarks.h"
#include "editor/view/CaretLayer.h"
#include "editor/view/CaretLineAccess.h"
#include "editor/view/EditorMargin.h"
#include "editor/view/Folds.h"
#include "editor/view/FoundMarks.h"
#include "editor/view/HostMarks.h"
#include "editor/view/HoverTips.h"
#include "editor/view/IndentGuides.h"
#include "editor/view/LineLayer.h"
#include "editor/view/LiveValues.h"
#include "editor/view/MarkColumn.h"
#include "editor/view/NumberColumn.h"
#include "editor/view/Problems.h"
#include "editor/view/ReadableColours.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/Zoom.h"
#include "find/FindBar.h"

#include <QtCore/QPointer>

#include <memory>

namespace ORVTListview {

class RichTextBox;
struct ProgramCommands;

// What a view is made of, a class for each subject.
struct CodeViewParts
{
    CodeViewParts(RichTextBox &box, const ProgramCommands &commands);
    ~CodeViewParts();
    Q_DISABLE_COPY_MOVE(CodeViewParts) // the parts know one another

    const QPointer<RichTextBox> box;
    BoxLayers &layers;
    const QPointer<EditorMargin> margin;     // a child of the box
    const QPointer<ScrollMarks> scrollMarks; // of its scroll bar
    Problems problems;
    Bookmarks bookmarks;
    HostMarks hostMarks;
    NumberColumn numbers;
    MarkColumn marks;
    Folds folds;
    const std::unique_ptr<CaretLayer> currentLine;
    const std::unique_ptr<CaretLayer> wordUses;
    const std::unique_ptr<CaretLayer> pairs;
    IndentGuides indentGuides;
    LineLayer blanks;
    Zoom zoom;
    LiveValues liveValues;
    HoverTips hover;
    const ProgramCommands &commands;
    CommandsState commandsState;
    QPointer<GoToLineBar> goToLineBar; // a child of the box, made when it is first needed
    CaretLineAccess caretLine;
    FoundMarks found;
    ReadableColours readableColours;
    QPointer<FindBar> findBar; // a child of the box, made when it is first needed
};

} // namespace ORVTListview
