#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// A line of two texts beside each other.
struct ComparedLine
{
    enum Kind {
        Same,
        Changed,
        Removed, // it stands in the first text only
        Added,   // in the second
        Gap,     // lines that are the same, left out
    };

    Kind kind;
    QString before;
    QString after;
    qsizetype line = 0; // in the second text, from 1; in the first for one removed

    friend bool operator==(const ComparedLine &, const ComparedLine &) = default;
};

// What differs, with some lines around; nothing when nothing does. The lines of both are
// separated by CR LF.
QList<ComparedLine> compared(const QString &before, const QString &after);

} // namespace ORVTListview
