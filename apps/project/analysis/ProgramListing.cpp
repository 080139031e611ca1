#include "project/analysis/ProgramListing.h"

#include "grid/rules/CellTexts.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QString textOf(const LineStatement &statement, const ParsedLine &parsed, QStringView line,
               const ProgramWords &words)
{
    QStringList pieces;
    for (qsizetype i = statement.first; i < statement.end; ++i) {
        const ProgramToken &token = parsed.tokens[i];
        const QStringView typed = line.sliced(token.place.start, token.place.length);
        pieces.append(token.word >= 0 ? words.spelling(token.word) : typed.toString());
    }
    return pieces.join(u' ');
}

} // namespace

QList<ListedStatement> listStatements(qint32 lines, const std::function<QString(qint32)> &text,
                                      const ProgramWords &words)
{
    QList<ListedStatement> listed;
    qint32 depth = 0;
    for (qint32 line = 0; line < lines; ++line) {
        const QString typed = text(line);
        const ParsedLine parsed = parseLine(typed, words);
        for (const LineStatement &statement : parsed.statements) {
            const StatementKind kind = statement.kind;
            const bool endsBlock = kind == StatementKind::Else || kind == StatementKind::EndIf;
            depth = std::max(0, depth - (endsBlock ? 1 : 0));
            listed.append({line + 1, kind, depth, textOf(statement, parsed, typed, words)});
            depth += kind == StatementKind::If || kind == StatementKind::Else ? 1 : 0;
        }
    }
    return listed;
}

QString indentedText(const ListedStatement &statement)
{
    return QString(4 * qsizetype(statement.depth), u' ') + statement.text;
}

QString listingText(const QList<ListedStatement> &statements)
{
    const qint32 last = statements.isEmpty() ? 0 : statements.constLast().line;
    const qsizetype width = QString::number(last).size();
    QString listing;
    for (const ListedStatement &each : statements)
        listing += QString::number(each.line).rightJustified(width) + u"  "_s + indentedText(each) +
                   u"\r\n"_s;
    return listing;
}

QString listingCsv(const QList<ListedStatement> &statements, const QStringList &titles,
                   const std::function<QString(StatementKind)> &nameOf)
{
    CellBlock cells{titles};
    for (const ListedStatement &each : statements)
        cells.append({QString::number(each.line), nameOf(each.kind), each.text});
    return commaText(cells);
}

} // namespace ORVTListview
