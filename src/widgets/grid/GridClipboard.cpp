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
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

qsizetype widthOf(const CellBlock &cells)
{
    qsizetype widest = 1;
    for (const QStringList &line : cells)
        widest = std::max(widest, line.size());
    return widest;
}

} // namespace

bool GridClipboard::copy(bool withHeaders) const
{
    const QList<int> columns = m_tools.selection.columns();
    const QList<int> rows = m_tools.selection.rows();
    if (m_tools.view.selectionModel()->selection().isEmpty() || rows.isEmpty() || columns.isEmpty())
        return false;
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
    return true;
}

bool GridClipboard::paste()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QList<CellPlace> chosen = m_tools.selection.chosen();
    CellBlock copied = data && data->hasText() ? cellsOfTabbedText(data->text()) : CellBlock();
    if (copied.isEmpty() || chosen.isEmpty())
        return false;
    const bool isOne = copied.size() == 1 && copied.constFirst().size() == 1;
    return isOne ? m_tools.edit.enter(m_tools.edit.forChosen(copied.constFirst().constFirst()))
                 : enterBlock(std::move(copied), chosen);
}

// Into the chosen cells when it fills them without rest, wherever they are; else into those
// from the first one on, unless that would pass by chosen ones that lie elsewhere.
bool GridClipboard::enterBlock(CellBlock copied, const QList<CellPlace> &chosen)
{
    const CellPlace first = chosen.constFirst();
    const GridSelection &selection = m_tools.selection;
    const Place taken{selection.rows(),
                      selection.isByCells() ? selection.columns() : QList<int>{first.column}};
    if (chosen.size() != taken.rows.size() * taken.columns.size())
        return refuseForRoom(first);
    CellBlock cells = fittedBlock(std::move(copied), taken.rows.size(), taken.columns.size());
    if (cells.size() == taken.rows.size() && widthOf(cells) == taken.columns.size())
        return m_tools.edit.enter(entriesFor(std::move(cells), taken));
    const qsizetype most = std::max(cells.size(), taken.rows.size());
    const Place next{selection.rowsFrom(first.row, most), selection.columnsFrom(first.column)};
    const bool isInOnePiece = next.rows.first(taken.rows.size()) == taken.rows &&
                              next.columns.first(taken.columns.size()) == taken.columns;
    if (!isInOnePiece || cells.size() > next.rows.size() || widthOf(cells) > next.columns.size())
        return refuseForRoom(first);
    const CellPlace last{next.rows.at(cells.size() - 1), next.columns.at(widthOf(cells) - 1)};
    const auto enter = [&] { return m_tools.edit.enter(entriesFor(std::move(cells), next)); };
    if (!selection.isByCells())
        return enter();
    return m_tools.selection.selectAfter(enter, first, last);
}

QList<CellEntry> GridClipboard::entriesFor(CellBlock cells, const Place &place) const
{
    QList<CellEntry> entries;
    entries.reserve(cells.size() * widthOf(cells));
    for (qsizetype line = 0; line < cells.size(); ++line) {
        ListItem *item = m_tools.table.itemAt(m_tools.view.model()->index(place.rows.at(line), 0));
        for (qsizetype at = 0; at < cells.at(line).size(); ++at)
            entries.append({item, place.columns.at(at), std::move(cells[line][at])});
    }
    return entries;
}

bool GridClipboard::refuseForRoom(CellPlace first)
{
    const QModelIndex cell = m_tools.view.model()->index(first.row, first.column);
    m_tools.edit.refuse({{m_tools.table.itemAt(cell), static_cast<qint16>(first.column),
                          Localise(u"There is not enough room here."_s)}});
    return false;
}

} // namespace ORVTListview
