#pragma once

#include "workbench/reading/ReadingSettings.h"
#include "workbench/settings/ColourSets.h"
#include "workbench/settings/Theme.h"

#include <QtCore/QLocale>
#include <QtCore/QString>

#include <optional>

class QSettings;

namespace ORVTListview {

// How a user wants the program shown, over what a project says.
struct EditorLook
{
    ColourSet colours = ColourSet::Project;
    RichTextSettings own = readyColours(ColourSet::Light); // for ColourSet::Own
    QString fontName;                                      // empty: the project's
    qint16 fontSize = 0;                                   // in points; 0: the project's

    // The project's appearance as this user sees it.
    RichTextSettings over(RichTextSettings project) const;

    friend bool operator==(const EditorLook &, const EditorLook &) = default;
};

// What a user has decided once for all projects.
struct Settings
{
    Theme theme = Theme::System;
    std::optional<QLocale> language; // none: the system's
    EditorLook look;
    ReadingSettings reading;

    // What is missing or cannot be read is as it was.
    void read(const QSettings &store);
    void write(QSettings &store) const;

    // What differs between two of them becomes as the later one has it.
    void takeChanges(const Settings &former, const Settings &later);

    friend bool operator==(const Settings &, const Settings &) = default;
};

} // namespace ORVTListview
