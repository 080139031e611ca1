#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace ORVTListview {

// A program of a project. It keeps its number as long as the project is open, whatever
// becomes of its name and file.
struct ProjectProgram
{
    qint32 id = 0; // from 1
    QString name;

    friend bool operator==(const ProjectProgram &, const ProjectProgram &) = default;
};

using ProgramList = QList<ProjectProgram>;

// By the programs' numbers, lines separated by CR LF.
using ProgramTexts = QMap<qint32, QString>;

} // namespace ORVTListview
