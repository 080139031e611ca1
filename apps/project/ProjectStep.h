#pragma once

#include "project/ProjectChange.h"
#include "project/ProjectProgram.h"

namespace ORVTListview {

// The programs of a project: which there are, and what they say.
struct ProgramState
{
    ProgramList list;
    ProgramTexts texts;

    friend bool operator==(const ProgramState &, const ProgramState &) = default;
};

// What belongs together: rows of tables, and what the programs are before and after.
struct ProjectStep
{
    RowChanges rows;
    ProgramState before; // both the same for a step of the tables alone
    ProgramState after;

    bool isOfTablesAlone() const { return before == after; }

    // The programs whose text it changes.
    QList<qint32> programs() const
    {
        QList<qint32> changed;
        for (auto text = before.texts.cbegin(); text != before.texts.cend(); ++text) {
            if (after.texts.contains(text.key()) && after.texts[text.key()] != *text)
                changed.append(text.key());
        }
        return changed;
    }
};

} // namespace ORVTListview
