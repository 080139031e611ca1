#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

enum class CellKind {
    Name, // the point's own name
    Text,
    Number,
    Value, // a number, or a text such as "On"
    YesNo,
};

// One column of a point table, the row number's column excepted.
struct ProjectColumn
{
    QString key;    // the column's English header
    QString member; // where the project file has it
    CellKind kind = CellKind::Text;
};

// The columns of a type, in the order in which the table shows them; none for
// dsCode and for what is no type.
const QList<ProjectColumn> &projectColumns(LwType type);

// The column of the points' names; -1 for a type whose points have none.
qsizetype nameColumn(LwType type);

// Whether a point can have this name: no control characters, no blanks around it.
bool isPointName(const QString &name);

// Where the project file has the points of a type; empty if it has none.
QString projectMember(LwType type);

// The types that have points, in the order of their values.
const QList<LwType> &projectTypes();

// The five types whose points are words of the program.
bool isVocabularyType(LwType type);

// A cell as the table shows it, free of the locale: a number in its shortest
// form, "Yes" or "No", empty where the project says nothing.
QString cellText(const QVariant &cell);

} // namespace ORVTListview
