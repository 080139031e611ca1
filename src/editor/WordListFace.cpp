#include "editor/WordListFace.h"

#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QAbstractItemModel>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QHeaderView>

#include <algorithm>

namespace ORVTListview {

namespace {

// How wide a word list is, in letters of average width.
constexpr int fewestLetters = 12;
constexpr int mostLetters = 48;

} // namespace

WordListFace::WordListFace(ReportList &list, const PopupWords &words)
    : m_list(list)
    , m_words(words)
{
    const QAbstractItemModel *entries = list.model();
    connect(entries, &QAbstractItemModel::modelReset, this, &WordListFace::forgetWidths);
    connect(entries, &QAbstractItemModel::rowsInserted, this, &WordListFace::forgetWidths);
    connect(entries, &QAbstractItemModel::dataChanged, this, &WordListFace::forgetWidths);
}

int WordListFace::rows()
{
    return view().model()->rowCount();
}

int WordListFace::rowHeight() const
{
    return m_list.verticalHeader()->defaultSectionSize();
}

int WordListFace::wantedWidth()
{
    if (!m_isMeasured || m_measuredIn != m_list.font()) {
        measure();
        m_measuredIn = m_list.font();
        m_isMeasured = true;
    }
    return rowWidth();
}

// The rows are drawn into what there is.
void WordListFace::fit(int)
{
    view().doItemsLayout();
}

void WordListFace::selectInList(int entry)
{
    m_list.goToRow(entry < m_list.ListItems()->Count() ? entry + 1 : 0); // 0 chooses none
}

int WordListFace::limited(int width) const
{
    const int letter = m_list.fontMetrics().averageCharWidth();
    return std::clamp(width, fewestLetters * letter, mostLetters * letter);
}

} // namespace ORVTListview
