#include "widgets/list/RowCopy.h"

#include "widgets/input/DraggedNames.h"
#include "widgets/list/ReportModel.h"
#include "widgets/look/CellText.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QList>
#include <QtCore/QMimeData>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QList<int> shownColumns(const QTableView &view)
{
    QList<int> columns;
    for (int visual = 0; visual < view.horizontalHeader()->count(); ++visual) {
        const int column = view.horizontalHeader()->logicalIndex(visual);
        if (!view.isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

// None for rows that have numbers and no names.
std::optional<int> nameColumn(const ReportModel &model)
{
    if (model.columns() == 0 || model.labelColumn() > 0)
        return model.columns() == 0 ? std::nullopt : std::optional(model.labelColumn());
    for (int column = 0; column < model.columns(); ++column) {
        const QString &key = ReportModel::keyOf(model.column(column));
        if (key == u"Label" || key == u"Name")
            return column;
    }
    return ReportModel::keyOf(model.column(0)) == u"#" ? std::nullopt : std::optional(0);
}

} // namespace

void addNames(const QTableView &view, const ReportModel &model, const QList<int> &places,
              QMimeData &data)
{
    const std::optional<int> column = nameColumn(model);
    if (!column)
        return;
    QStringList names;
    for (const int place : places) {
        if (!view.isRowHidden(place))
            names.append(model.index(place, *column).data().toString());
    }
    DraggedNames::add(data, names);
}

void copyRows(const QTableView &view, const QList<int> &places, QMimeData &data)
{
    const QList<int> columns = shownColumns(view);
    QString text;
    QString html = u"<table>\n"_s;
    for (const int place : places) {
        if (view.isRowHidden(place))
            continue;
        QStringList cells;
        for (const int column : columns)
            cells.append(shownText(view.model()->index(place, column).data().toString()));
        text += cells.join(u'\t') + u'\n';
        html += u"<tr>"_s;
        for (const QString &cell : std::as_const(cells))
            html += u"<td>"_s + cell.toHtmlEscaped() + u"</td>"_s;
        html += u"</tr>\n"_s;
    }
    html += u"</table>\n"_s;
    if (text.isEmpty())
        return;
    data.setText(text);
    data.setHtml(html);
}

} // namespace ORVTListview
