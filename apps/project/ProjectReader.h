#pragma once

#include "project/JsonPlace.h"
#include "project/ProgramEntries.h"
#include "project/ProgramFile.h"
#include "project/ProjectRow.h"

#include <ORVTListview/Types.h>

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

struct ControllerInfo
{
    QString model;
    QString address;
    QString location;
    bool isSqrtSupported = false;
    bool isHOASupported = false; // outputs have hardware overrides

    friend bool operator==(const ControllerInfo &, const ControllerInfo &) = default;
};

// A family of indexed names.
struct ProjectFamily
{
    QString name;
    QString numberFormat;
    qint32 lowerBound = 0;
    qint32 upperBound = 0;

    friend bool operator==(const ProjectFamily &, const ProjectFamily &) = default;
};

// All that a project file and its programs say, as plain values.
struct ProjectContents
{
    QString name;
    ControllerInfo controller;
    ProjectTables rows;
    QList<ProjectFamily> indexedNames;
    RichTextSettings editor;
    QList<ProgramEntry> programs;
    QList<ProgramFile> texts; // of these, in their order
    QByteArray json;          // the project file itself
};

// What a project file says, without its programs' texts. Raises Error as readProject does.
ProjectContents readContents(const JsonPlace &root);

// A program's file as it can be opened.
QString programPath(const QString &projectFile, const QString &program);

// The form of the file is told in docs/guide/project-file.md. Raises Error with a
// ProjectErrorNumber for the first thing that is wrong.
ProjectContents readProject(const QString &fileName);

// The same from what stands beside it with a "~" behind its name; so does a program where
// that cannot be read.
ProjectContents readVersionBefore(const QString &fileName);

} // namespace ORVTListview
