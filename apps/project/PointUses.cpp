#include "project/PointUses.h"

#include "base/TextRules.h"
#include "find/rules/ProgramSearch.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"

#include <QtCore/QMap>

#include <algorithm>
#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The cells that name a point.
bool isReference(LwType type, const QString &member)
{
    struct Reference
    {
        LwType type;
        QStringView member;
    };
    static constexpr std::array references{
        Reference{dsController, u"input"},
        Reference{dsController, u"setpoint"},
        Reference{dsLog, u"data"},
        Reference{dsTimer, u"data"},
        Reference{dsOs, u"targetTemperature"},
        Reference{dsOs, u"targetSetpoint"},
        Reference{dsOs, u"outdoorTemperature"},
        Reference{dsOs, u"schedule"},
        Reference{dsNvo, u"dataSource"},
    };
    return std::ranges::any_of(references, [&](const Reference &reference) {
        return reference.type == type && reference.member == member;
    });
}

void appendProgramUses(QList<PointUse> &uses, const QString &program, const QString &name)
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
        uses.append({line,
                     {static_cast<qint32>(place), static_cast<qint32>(name.size())},
                     dsCode,
                     -1,
                     -1,
                     text});
    }
}

void appendTableUses(QList<PointUse> &uses, const Project &project, LwType type,
                     const QString &name)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    const QList<ProjectRow> &rows = project.rows(type);
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (!isReference(type, columns.at(column).member))
            continue;
        for (qsizetype row = 0; row < rows.size(); ++row) {
            const QString text = rows.at(row).cellsOfFile().value(column).toString();
            if (isSameWord(text.trimmed(), name))
                uses.append({0, {}, type, row, column, text});
        }
    }
}

} // namespace

QList<PointUse> usesOfPoint(const Project &project, const QString &program, const QString &name)
{
    QList<PointUse> uses;
    if (name.isEmpty())
        return uses;
    appendProgramUses(uses, program, name);
    for (const LwType type : projectTypes())
        appendTableUses(uses, project, type, name);
    return uses;
}

Renaming renamingOf(const Project &project, const RowChange &point, const QList<PointUse> &uses)
{
    Renaming renaming{{point}, {}};
    QMap<std::pair<LwType, qsizetype>, ProjectRow> rows;
    for (const PointUse &use : uses) {
        if (use.line > 0) {
            renaming.pieces.append(use.piece);
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
