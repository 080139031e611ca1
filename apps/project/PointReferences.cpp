#include "project/PointReferences.h"

#include "base/TextRules.h"
#include "project/Project.h"
#include "project/analysis/ProgramAnalysis.h"

#include <QtCore/QStringList>

#include <functional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// Of the types whose rows read points.
bool namesPoint(LwType type, const QString &key)
{
    switch (type) {
    case dsController:
        return key == u"Input"_s || key == u"Setpoint"_s;
    case dsLog:
    case dsTimer:
        return key == u"Data"_s;
    case dsOs:
        return key == u"Target Temperature"_s || key == u"Target Setpoint"_s ||
               key == u"Outdoor Temperature"_s;
    case dsNvo:
        return key == u"Data Source"_s;
    default:
        return false;
    }
}

using Take = std::function<void(const PointReference &at, const QString &name)>;

void takeReferences(const Project &project, LwType type, qsizetype column, const Take &take)
{
    const QList<ProjectRow> &rows = project.rows(type);
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QVariant cell = rows[row].cells.value(column);
        if (cell.typeId() == QMetaType::QString && !cell.toString().isEmpty())
            take({type, row, column}, foldedCase(cell.toString()));
    }
}

void takeReferences(const Project &project, const Take &take)
{
    for (const LwType type : projectTypes()) {
        const QList<ProjectColumn> &columns = projectColumns(type);
        for (qsizetype column = 0; column < columns.size(); ++column) {
            if (namesPoint(type, columns[column].key))
                takeReferences(project, type, column, take);
        }
    }
}

void takeSetByHand(const Project &project, LwType type, QSet<QString> &names)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (columns[column].key != u"Mode"_s)
            continue;
        for (const ProjectRow &row : project.rows(type)) {
            if (row.cells.value(column).toString() == u"Manual"_s)
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
