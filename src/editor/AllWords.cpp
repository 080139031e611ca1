#include "editor/AllWords.h"

#include "editor/rules/language/PopupWords.h"
#include "widgets/look/TextWidths.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QAbstractItemModel>
#include <QtWidgets/QHeaderView>

#include <algorithm>

namespace ORVTListview {

AllWords::AllWords(ReportList &list, const PopupWords &words)
    : m_list(list)
    , m_words(words)
{
    const auto forget = [this] { m_measured = 0; };
    const QAbstractItemModel *rows = m_list.model();
    connect(rows, &QAbstractItemModel::modelReset, this, forget);
    connect(rows, &QAbstractItemModel::rowsInserted, this, forget);
    connect(rows, &QAbstractItemModel::dataChanged, this, forget);
}

QAbstractItemView &AllWords::view()
{
    return m_list;
}

bool AllWords::show(const QString &word)
{
    m_word = word;
    return true;
}

void AllWords::choose()
{
    const qsizetype exact = m_word.isEmpty() ? -1 : m_words.find(m_word);
    const qsizetype place = exact >= 0 || m_word.isEmpty() ? exact : m_words.findBeginning(m_word);
    choose(static_cast<int>(place));
    if (const int row = chosen(); row >= 0)
        showFirst(row); // what else begins so comes behind it
}

void AllWords::showFirst(int row)
{
    m_list.scrollTo(m_list.model()->index(row, 0), ReportList::PositionAtTop);
}

// The host may have taken rows out of the list or put its own there.
void AllWords::choose(int row)
{
    m_list.goToRow(row < rows() ? row + 1 : 0); // 0 chooses none
}

int AllWords::chosen() const
{
    const ListItem *item = m_list.SelectedItem();
    return item ? item->Index() - 1 : -1;
}

int AllWords::rows() const
{
    return m_list.ListItems()->Count();
}

int AllWords::rowHeight() const
{
    return m_list.verticalHeader()->defaultSectionSize();
}

int AllWords::widestRow() const
{
    TextWidths widths(m_list.font());
    int widest = 0;
    int row = 0;
    const QAbstractItemModel &rows = *m_list.model();
    for (int i = 0; i < rows.rowCount(); ++i) {
        const int before = widest;
        widths.widen(widest, rows.index(i, 0).data().toString());
        if (widest > before)
            row = i;
    }
    return row;
}

int AllWords::wantedWidth()
{
    if (m_measured == 0 || m_measuredIn != m_list.font()) {
        m_measuredIn = m_list.font();
        m_measured = m_list.sizeHintForIndex(m_list.model()->index(widestRow(), 0)).width();
    }
    const int letter = m_list.fontMetrics().averageCharWidth();
    return std::clamp(m_measured, fewestLetters * letter, mostLetters * letter);
}

void AllWords::fit(int width)
{
    m_list.setColumnWidth(0, width);
}

} // namespace ORVTListview
