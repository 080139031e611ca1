#pragma once

#include "project/analysis/LineParser.h"

#include <functional>

namespace ORVTListview {

// A statement of a program. The line counts from 1; the depth is how many IFs are around
// it; the text has its words as they are listed, one blank apart.
struct ListedStatement
{
    qint32 line = 0;
    StatementKind kind = StatementKind::Assignment;
    qint32 depth = 0;
    QString text;
    qint32 program = 0; // its number, where it is told

    friend bool operator==(const ListedStatement &, const ListedStatement &) = default;
};

// Of the lines 0 to lines - 1, which text gives; from the top.
QList<ListedStatement> listStatements(qint32 lines, const std::function<QString(qint32)> &text,
                                      const ProgramWords &words);

// The statement, four blanks for each IF around it.
QString indentedText(const ListedStatement &statement);

// "12  IF Temp1 > 3", a line for each, with line numbers of one width.
QString listingText(const QList<ListedStatement> &statements);

// A line for each, of values separated by commas: line, what the statement is called, and
// its text, behind a line with the titles of the three.
QString listingCsv(const QList<ListedStatement> &statements, const QStringList &titles,
                   const std::function<QString(StatementKind)> &nameOf);

} // namespace ORVTListview
