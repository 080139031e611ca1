#pragma once

#include "widgets/combo/ComboEntries.h"
#include "widgets/combo/ComboList.h"
#include "widgets/input/DragEvents.h"
#include "widgets/input/EventSurface.h"

#include <QtGui/QColor>

#include <functional>

class QComboBox;

namespace ORVTListview {

// What an ImageCombo is made of.
struct ImageComboParts
{
    ImageComboParts(QComboBox &owner, std::function<bool(QPoint)> pressesArrow);
    Q_DISABLE_COPY_MOVE(ImageComboParts) // the parts know one another

    ComboEntries *entries; // these are children of the combo
    ComboList *list;
    DragEvents drag;
    EventSurface field;

    // What Escape brings back.
    int settledRow = -1;
    QString settledText;

    // Events that wait for the toolkit's work on the field to be over.
    bool hasChanged = false;
    bool isClicked = false;
    bool isPicked = false;
    bool isAtWork = false;

    QColor textColour; // invalid: the palette's
    bool dragsEntry = false;
    bool isPicturePressed = false;
    QPoint pressed;
};

} // namespace ORVTListview
