#include "widgets/list/RowCopy.h"

#include "widgets/look/CellText.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QList>
#include <QtCore/QMimeData>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

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

} // namespace

void copyRows(const QTableView &view, const QList<int> &positions, QMimeData &data)
{
    const QList<int> columns = shownColumns(view);
    QString text;
    QString html = u"<table>\n"_s;
    for (const int position : positions) {
        if (view.isRowHidden(position))
            continue;
        QStringList cells;
        for (const int column : columns)
            cells.append(shownText(view.model()->index(position, column).data().toString()));
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
