#pragma once

#include "widgets/box/BoxCommands.h"
#include "widgets/box/BoxFormats.h"
#include "widgets/box/BoxText.h"
#include "widgets/look/Colours.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPoint>
#include <QtGui/QTextCursor>

#include <memory>
#include <optional>

namespace ORVTListview {

struct RichTextBox::Parts
{
    explicit Parts(RichTextBox &box)
        : text(*box.document())
        , commands(std::make_unique<BoxCommands>(box))
    {
    }

    static QTextCharFormat formatAt(const QTextCursor &cursor);

    BoxText text;
    BoxFormats formats;
    qint32 backColor = Colours::windowBackground;
    bool hasOwnPalette = false;   // set for backColor
    bool isQuiet = false;         // Change is not raised
    bool keepsText = false;       // what changes is not the text
    quint64 announcedChanges = 0; // of text.changeCount()
    std::unique_ptr<BoxCommands> commands;
    std::optional<QPoint> dragStart; // where the selection was taken hold of
    QTextCursor dragged;             // while a drag of this box runs
};

} // namespace ORVTListview
