#include "widgets/grid/GridClipboard.h"

#include "shared/texts/TextTable.h"
#include "widgets/grid/CellEdit.h"
#include "widgets/grid/CellTable.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <memory>

namespace ORVTListview {

using namespace Qt::StringLiterals;

void GridClipboard::copy(bool withHeaders) const
{
    const QList<int> columns = m_tools.selection.columns();
    const QList<int> rows = m_tools.selection.rows();
    if (m_tools.view.selectionModel()->selection().isEmpty() || rows.isEmpty() || columns.isEmpty())
        return;
    CellBlock cells;
    if (withHeaders) {
        QStringList &heads = cells.emplaceBack();
        for (const int column : columns)
            heads.append(m_tools.table.columnText(column));
    }
    for (const int row : rows) {
        QStringList &line = cells.emplaceBack();
        for (const int column : columns) {
            const bool isOne = m_tools.selection.isSelected({row, column});
            line.append(isOne ? m_tools.view.model()->index(row, column).data().toString()
                              : QString());
        }
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(tabbedText(cells));
    data->setHtml(htmlTable(cells, withHeaders ? 1 : 0));
    data->setData(u"text/csv"_s, commaText(cells).toUtf8());
    QGuiApplication::clipboard()->setMimeData(data.release());
}

bool GridClipboard::paste()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QList<CellPlace> chosen = m_tools.selection.chosen();
    if (!data || !data->hasText() || chosen.isEmpty())
        return false;
    const qsizetype width = m_tools.selection.isByCells() ? m_tools.selection.columns().size() : 1;
    const CellBlock cells =
        fittedBlock(cellsOfTabbedText(data->text()), m_tools.selection.rows().size(), width);
    return !cells.isEmpty() && enter(cells, chosen.first());
}

bool GridClipboard::enter(const CellBlock &cells, CellPlace first)
{
    const QList<int> rows = m_tools.selection.rowsFrom(first.row);
    const QList<int> columns = m_tools.selection.columnsFrom(first.column);
    QList<CellEntry> entries;
    qsizetype widest = 1;
    for (qsizetype line = 0; line < cells.size(); ++line) {
        const QStringList &texts = cells.at(line);
        widest = std::max(widest, texts.size());
        if (line >= rows.size() || widest > columns.size())
            return refuseForRoom(first);
        for (qsizetype place = 0; place < texts.size(); ++place) {
            const QModelIndex cell = m_tools.view.model()->index(rows.at(line), columns.at(place));
            entries.append({m_tools.table.itemAt(cell), cell.column(), texts.at(place)});
        }
    }
    const CellPlace last{rows.at(cells.size() - 1), columns.at(widest - 1)};
    if (!m_tools.edit.enter(entries)) // the list may be gone
        return false;
    if (m_tools.selection.isByCells())
        m_tools.selection.select(first, last);
    return true;
}

bool GridClipboard::refuseForRoom(CellPlace first)
{
    const QModelIndex cell = m_tools.view.model()->index(first.row, first.column);
    m_tools.edit.refuse({{m_tools.table.itemAt(cell), static_cast<qint16>(first.column),
                          Localise(u"There is not enough room here."_s)}});
    return false;
}

} // namespace ORVTListview
