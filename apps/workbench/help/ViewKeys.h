#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// The keys that a view acts on by itself, in no menu of the window.
struct ViewKeys
{
    struct Command
    {
        QString text;
        QString keys; // as the system writes them
    };

    QString view;
    QList<Command> commands;
};

// Those of the program, the tables, the project's tree and what all views share, in the language
// of now.
QList<ViewKeys> keysOfViews();

} // namespace ORVTListview
