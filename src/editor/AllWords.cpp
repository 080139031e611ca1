#include "editor/AllWords.h"

#include "editor/rules/language/PopupWords.h"
#include "widgets/look/TextWidths.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QAbstractItemModel>

namespace ORVTListview {

QAbstractItemView &AllWords::view()
{
    return list();
}

bool AllWords::show(const QString &word)
{
    m_word = word;
    return true;
}

void AllWords::choose()
{
    const qsizetype exact = m_word.isEmpty() ? -1 : known().find(m_word);
    const qsizetype place = exact >= 0 || m_word.isEmpty() ? exact : known().findBeginning(m_word);
    choose(static_cast<int>(place));
    if (const int row = chosen(); row >= 0)
        showFirst(row); // what else begins so comes behind it
}

void AllWords::showFirst(int row)
{
    list().scrollTo(list().model()->index(row, 0), ReportList::PositionAtTop);
}

void AllWords::choose(int row)
{
    selectInList(row);
}

int AllWords::chosen() const
{
    const ListItem *item = list().SelectedItem();
    return item ? item->Index() - 1 : -1;
}

int AllWords::widestRow() const
{
    TextWidths widths(list().font());
    int widest = 0;
    int row = 0;
    const QAbstractItemModel &rows = *list().model();
    for (int i = 0; i < rows.rowCount(); ++i) {
        const int before = widest;
        widths.widen(widest, rows.index(i, 0).data().toString());
        if (widest > before)
            row = i;
    }
    return row;
}

void AllWords::measure()
{
    m_width = list().sizeHintForIndex(list().model()->index(widestRow(), 0)).width();
}

int AllWords::rowWidth()
{
    return limited(m_width);
}

void AllWords::fit(int width)
{
    list().setColumnWidth(0, width);
}

} // namespace ORVTListview
