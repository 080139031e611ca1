#include "grid/rules/RowFilter.h"

#include "grid/rules/NaturalOrder.h"

#include <QtCore/QStringMatcher>

#include <algorithm>
#include <vector>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// To the eye, whatever white space it holds.
bool isEmpty(QStringView text)
{
    return text.trimmed().isEmpty();
}

// A filter made ready to look at many rows.
class ReadyFilter
{
public:
    ReadyFilter(const CellFilter &filter, const ShownText &shown)
        : m_filter(filter)
        , m_shown(shown)
        , m_matcher(filter.text, Qt::CaseInsensitive)
        , m_key(filter.text)
    {
    }

    bool passes(int row, const QList<int> &columns, const CellTexts &texts) const
    {
        if (m_filter.column != CellFilter::anyColumn)
            return passesCell(m_filter.column, texts(row, m_filter.column));
        return std::any_of(columns.cbegin(), columns.cend(),
                           [&](int column) { return passesCell(column, texts(row, column)); });
    }

private:
    bool passesCell(int column, const QString &text) const
    {
        const bool passes = passesText(text);
        const QString seen = m_shown ? m_shown(column, text) : text;
        if (seen == text)
            return passes;
        return m_filter.way == CellFilter::Differs ? passes && passesText(seen)
                                                   : passes || passesText(seen);
    }

    bool passesText(const QString &text) const
    {
        switch (m_filter.way) {
        case CellFilter::Contains:
            return text.size() >= m_filter.text.size() && m_matcher.indexIn(text) >= 0;
        case CellFilter::Differs:
            return text != m_filter.text && !NaturalKey::isSame(NaturalKey(text), m_key);
        case CellFilter::IsEmpty:
            return isEmpty(text);
        case CellFilter::IsNotEmpty:
            return !isEmpty(text);
        }
        return true;
    }

    CellFilter m_filter;
    const ShownText &m_shown;
    QStringMatcher m_matcher;
    NaturalKey m_key;
};

} // namespace

CellFilter typedFilter(const QString &typed, int column)
{
    const QString text = typed.trimmed();
    if (column == CellFilter::anyColumn)
        return {column, CellFilter::Contains, text};
    if (text == u"="_s)
        return {column, CellFilter::IsEmpty, QString()};
    if (text == u"<>"_s)
        return {column, CellFilter::IsNotEmpty, QString()};
    if (text.startsWith(u"<>"_s))
        return {column, CellFilter::Differs, text.sliced(2).trimmed()};
    return {column, CellFilter::Contains, text};
}

QList<int> filteredRows(int rows, const QList<int> &columns, const QList<CellFilter> &filters,
                        const CellTexts &texts, const ShownText &shown)
{
    std::vector<ReadyFilter> ready;
    for (const CellFilter &filter : filters) {
        if (filter.way != CellFilter::Contains || !filter.text.isEmpty())
            ready.emplace_back(filter, shown);
    }
    QList<int> passed;
    passed.reserve(rows);
    for (int row = 0; row < rows; ++row) {
        const bool passes = std::all_of(ready.cbegin(), ready.cend(), [&](const ReadyFilter &each) {
            return each.passes(row, columns, texts);
        });
        if (passes)
            passed.append(row);
    }
    return passed;
}

} // namespace ORVTListview
