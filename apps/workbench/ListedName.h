#pragma once

#include "base/TextPiece.h"

#include <QtCore/QString>

namespace ORVTListview {

class ProgramViews;
class Project;
struct ResultPlace;
struct ShownUse;

// What the places are of that the results list.
struct ListedName
{
    QString name;
    bool isPoint = false; // and not any text that was looked for

    // The use as it is after editing: where it stands in its line by now, and what the line
    // says. False where the line, or the cell of the project's table, has it no longer.
    bool follow(ShownUse &use, const ProgramViews &programs, const Project *project) const;

private:
    bool isIn(const Project *project, const ResultPlace &place) const;
    TextPiece pieceIn(const QString &text, qint32 start) const;
};

} // namespace ORVTListview
