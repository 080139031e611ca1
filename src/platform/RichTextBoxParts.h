#pragma once

#include "platform/BoxCommands.h"
#include "platform/BoxFormats.h"
#include "platform/BoxText.h"
#include "platform/Colours.h"
#include "platform/EventSurface.h"
#include "platform/RichTextBox.h"

#include <QtCore/QPoint>

#include <memory>
#include <optional>

namespace ORVTListview {

struct RichTextBox::Parts
{
    explicit Parts(RichTextBox &box)
        : text(*box.document())
        , surface(*box.viewport())
        , commands(std::make_unique<BoxCommands>(box))
    {
    }

    static QTextCharFormat formatAt(const QTextCursor &cursor);

    BoxText text;
    BoxFormats formats;
    qint32 backColor = Colours::windowBackground;
    bool hasOwnPalette = false;   // set for backColor
    bool isQuiet = false;         // Change is not raised
    quint64 announcedChanges = 0; // of text.changeCount()
    int changing = 0;             // how many Changing live
    bool hasChanged = false;      // Change waits for them
    bool isChangeQueued = false;
    EventSurface surface;
    std::unique_ptr<BoxCommands> commands;
    std::optional<QPoint> dragStart; // where the selection was taken hold of
};

} // namespace ORVTListview
