#pragma once

#include "widgets/box/BoxCommands.h"
#include "widgets/box/BoxFormats.h"
#include "widgets/box/BoxText.h"
#include "widgets/box/DraggedText.h"
#include "widgets/box/LateColours.h"
#include "widgets/box/ReplacedText.h"
#include "widgets/input/EventSurface.h"
#include "widgets/look/Colours.h"

#include <QtCore/QPoint>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QTextCursor>

#include <memory>
#include <optional>
#include <utility>

namespace ORVTListview {

class BoxLayers;

// What a box is made of, for the files that its class is written in.
struct BoxParts
{
    BoxParts(QTextDocument &document, QWidget &viewport, std::unique_ptr<BoxCommands> plain)
        : text(document)
        , late(document, text)
        , surface(viewport)
        , commands(std::move(plain))
    {
    }

    // While it lives, what changes is not the text, and raises no Change. One that a
    // change before it is about to raise stays to be raised.
    class KeepingText
    {
    public:
        explicit KeepingText(BoxParts &parts)
            : m_parts(parts)
            , m_isOwed(parts.announcedChanges != parts.text.changeCount())
            , m_keepsText(parts.keepsText, true)
        {
        }
        ~KeepingText()
        {
            if (m_isOwed)
                m_parts.announcedChanges = m_parts.text.changeCount() - 1;
        }
        Q_DISABLE_COPY_MOVE(KeepingText) // strictly nested

    private:
        BoxParts &m_parts;
        bool m_isOwed;
        QScopedValueRollback<bool> m_keepsText;
    };

    // Not again for what is part of a change.
    void announceChange(bool losesPart) const
    {
        if (!isQuiet)
            commands->beforeChange(losesPart);
    }

    // The same for a change at a selection, or beside a caret.
    void announceChange(const QTextCursor &place)
    {
        late.giveAround(place);
        announceChange(place.hasSelection());
    }

    BoxText text;
    LateColours late;
    BoxFormats formats;
    qint32 backColor = Colours::windowBackground;
    bool hasOwnPalette = false;   // set for backColor
    bool isQuiet = false;         // Change is not raised
    bool keepsText = false;       // what changes is not the text
    quint64 announcedChanges = 0; // of text.changeCount()
    int changing = 0;             // how many Changing live
    bool hasChanged = false;      // Change waits for them
    bool isChangeQueued = false;
    std::optional<ReplacedText> replaced; // is told before Change
    quint64 replacements = 0;             // how often the whole text was
    EventSurface surface;
    std::unique_ptr<BoxCommands> commands;
    BoxLayers *layers = nullptr;     // the box owns them
    std::optional<QPoint> dragStart; // where the selection was taken hold of
    DraggedText dragged;             // while a drag of this box runs
};

} // namespace ORVTListview
