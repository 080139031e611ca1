#pragma once

#include "project/ProjectChange.h"
#include "project/ProjectProgram.h"

#include "base/TextPiece.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

class Project;

// A place where a point is named: in a program, or in a cell of another table.
struct PointUse
{
    qint32 program = 0; // its number; 0 for a cell
    qint32 line = 0;    // of the program, from 1
    TextPiece piece;    // of the program
    LwType type = dsCode;
    qsizetype row = -1;
    qsizetype column = -1;
    QString text; // of the line or of the cell
};

// Every place that names a point so, in any letter case; those of the programs
// first, in their order. What describes a point in words is no use of it.
QList<PointUse> usesOfPoint(const Project &project, const ProgramTexts &programs,
                            const QString &name);

// A point renamed, and the places chosen of those that name it.
struct Renaming
{
    RowChanges rows;
    QMap<qint32, QList<TextPiece>> pieces; // by program
};
Renaming renamingOf(const Project &project, const RowChange &point, const QList<PointUse> &uses);

// The program with another text in the place of the pieces, which follow one another.
QString withPieces(const QString &program, const QList<TextPiece> &pieces, const QString &text);

} // namespace ORVTListview
