#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>

namespace ORVTListview {

enum class ProblemSeverity : qint32 { Error, Warning, Hint };

// What a check of the program found, and where.
struct Problem
{
    qint32 line = 1;   // from 1
    qint32 from = 0;   // characters of the line before it
    qint32 length = 0; // within the line; 0 for the rest of it
    ProblemSeverity severity = ProblemSeverity::Error;
    QString text;

    friend bool operator==(const Problem &, const Problem &) = default;
};

} // namespace ORVTListview

Q_DECLARE_METATYPE(ORVTListview::Problem)
