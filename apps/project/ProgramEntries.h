#pragma once

#include "project/JsonPlace.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// What a project's file says of a program.
struct ProgramEntry
{
    QString name;
    QString file; // seen from the project file's folder

    friend bool operator==(const ProgramEntry &, const ProgramEntry &) = default;
};

// The form of a project's file that has several programs; the one before has one.
constexpr qint32 formOfSeveralPrograms = 2;

// A text that is a name. Raises Error.
QString readName(const JsonPlace &place);

// At least one, of a project's file of this form. Raises Error.
QList<ProgramEntry> readProgramEntries(const JsonPlace &root, qint32 form);

// The text of a project's file with these programs. A file of the former form stays so
// where that can say it; everything beside the programs keeps its layout.
QByteArray withProgramEntries(const QByteArray &json, const QString &fileName,
                              const QList<ProgramEntry> &programs);

} // namespace ORVTListview
