#include "project/PointUses.h"

#include "find/rules/ProgramSearch.h"
#include "project/PointReferences.h"
#include "project/Project.h"

#include <QtCore/QMap>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

void appendProgramUses(QList<PointUse> &uses, qint32 id, const QString &program,
                       const QString &name)
{
    qint32 line = 1;
    qsizetype start = 0;
    for (const qsizetype place : placesOfWord(program, name)) {
        for (qsizetype end = program.indexOf(u"\r\n"_s, start); end >= 0 && end < place;
             end = program.indexOf(u"\r\n"_s, start)) {
            start = end + 2;
            ++line;
        }
        const qsizetype end = program.indexOf(u"\r\n"_s, place);
        const QString text = program.sliced(start, (end < 0 ? program.size() : end) - start);
        uses.append({id,
                     line,
                     {static_cast<qint32>(place), static_cast<qint32>(name.size())},
                     dsCode,
                     -1,
                     -1,
                     text});
    }
}

} // namespace

QList<PointUse> usesOfPoint(const Project &project, const ProgramTexts &programs,
                            const QString &name)
{
    QList<PointUse> uses;
    if (name.isEmpty())
        return uses;
    for (const ProjectProgram &program : project.programs())
        appendProgramUses(uses, program.id, programs.value(program.id), name);
    for (const auto &[type, row, column] : referencesTo(project, name)) {
        const ProjectRow &named = project.rows(type).at(row);
        uses.append({0, 0, {}, type, row, column, named.cellsOfFile().value(column).toString()});
    }
    return uses;
}

Renaming renamingOf(const Project &project, const RowChange &point, const QList<PointUse> &uses)
{
    Renaming renaming{{point}, {}};
    QMap<std::pair<LwType, qsizetype>, ProjectRow> rows;
    for (const PointUse &use : uses) {
        if (use.program > 0) {
            renaming.pieces[use.program].append(use.piece);
            continue;
        }
        const std::pair place(use.type, use.row);
        if (!rows.contains(place))
            rows.insert(place, project.rows(use.type).at(use.row));
        rows[place].setCell(use.column, point.after->name);
    }
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        const auto [type, number] = row.key();
        renaming.rows.append({type, number, project.rows(type).at(number), row.value()});
    }
    return renaming;
}

QString withPieces(const QString &program, const QList<TextPiece> &pieces, const QString &text)
{
    QString result;
    qsizetype done = 0;
    for (const TextPiece &piece : pieces) {
        result += QStringView(program).sliced(done, piece.start - done);
        result += text;
        done = piece.end();
    }
    result += QStringView(program).sliced(done);
    return result;
}

} // namespace ORVTListview
