#pragma once

#include "editor/view/CurrentLine.h"
#include "editor/view/EditorMargin.h"
#include "editor/view/NumberColumn.h"
#include "editor/view/PairMarks.h"
#include "editor/view/WordUses.h"

#include <QtCore/QPointer>

namespace ORVTListview {

class RichTextBox;

// What a view is made of, a class for each subject.
struct CodeViewParts
{
    explicit CodeViewParts(RichTextBox &box);
    ~CodeViewParts();
    Q_DISABLE_COPY_MOVE(CodeViewParts) // the parts know one another

    const QPointer<RichTextBox> box;
    BoxLayers &layers;
    const QPointer<EditorMargin> margin; // a child of the box
    NumberColumn numbers;
    CurrentLine currentLine;
    WordUses wordUses;
    PairMarks pairs;
};

} // namespace ORVTListview
