#include "project/PointReferences.h"

#include "base/TextRules.h"
#include "project/Project.h"
#include "project/analysis/ProgramAnalysis.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <functional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The columns whose cells name points.
bool namesPoint(LwType type, const ProjectColumn &column)
{
    struct Reference
    {
        LwType type = dsCode;
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
        return reference.type == type && reference.member == column.member;
    });
}

using Take = std::function<void(const PointReference &at, const QString &name)>;

void takeReferences(const Project &project, LwType type, qsizetype column, const Take &take)
{
    const QList<ProjectRow> &rows = project.rows(type);
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QVariant cell = rows[row].cellsOfFile().value(column); // a number is no name
        const QString name = cell.toString().trimmed();
        if (cell.typeId() == QMetaType::QString && !name.isEmpty())
            take({type, row, column}, foldedCase(name));
    }
}

void takeReferences(const Project &project, const Take &take)
{
    for (const LwType type : projectTypes()) {
        const QList<ProjectColumn> &columns = projectColumns(type);
        for (qsizetype column = 0; column < columns.size(); ++column) {
            if (namesPoint(type, columns[column]))
                takeReferences(project, type, column, take);
        }
    }
}

void takeSetByHand(const Project &project, LwType type, QSet<QString> &names)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (columns[column].member != u"mode"_s && columns[column].member != u"hwOverrideMode"_s)
            continue;
        for (const ProjectRow &row : project.rows(type)) {
            if (isSameWord(row.cells.value(column).toString().trimmed(), u"Manual"_s))
                names.insert(foldedCase(row.name));
        }
    }
}

} // namespace

QList<PointReference> referencesTo(const Project &project, const QString &name)
{
    QList<PointReference> found;
    const QString folded = foldedCase(name);
    takeReferences(project, [&](const PointReference &at, const QString &each) {
        if (each == folded)
            found.append(at);
    });
    return found;
}

OtherUses otherUsesOf(const Project &project)
{
    OtherUses uses;
    takeReferences(project, [&](const PointReference & /*at*/, const QString &name) {
        uses.read.insert(name);
    });
    takeSetByHand(project, dsVariable, uses.written);
    takeSetByHand(project, dsOutput, uses.written);
    return uses;
}

} // namespace ORVTListview
