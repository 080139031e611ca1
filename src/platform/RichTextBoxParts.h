#pragma once

#include "platform/BoxCommands.h"
#include "platform/BoxFormats.h"
#include "platform/BoxText.h"
#include "platform/Colours.h"
#include "platform/RichTextBox.h"

#include <QtCore/QPoint>

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

    BoxText text;
    BoxFormats formats;
    qint32 backColor = Colours::windowBackground;
    bool isQuiet = false; // a change of formats only is under way
    std::unique_ptr<BoxCommands> commands;
    std::optional<QPoint> dragStart; // where the selection was taken hold of
};

} // namespace ORVTListview
