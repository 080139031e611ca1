#include "widgets/list/RowSearch.h"

#include "widgets/list/ReportModel.h"

namespace ORVTListview {

int RowSearch::find(const ReportModel &model, int start) const
{
    for (int position = start; position < model.rows(); ++position) {
        if (matchesRow(model, position))
            return position;
    }
    return -1;
}

bool RowSearch::matchesRow(const ReportModel &model, int position) const
{
    const ReportRow &row = model.row(position);
    if (field == Field::Text)
        return matches(row.content.text);
    if (field == Field::Tag)
        return matches(row.content.tag);
    for (int column = 1; column < model.columns(); ++column) {
        if (matches(model.cellText(row, column)))
            return true;
    }
    return false;
}

bool RowSearch::matches(const QString &candidate) const
{
    return match == Match::Whole ? candidate.compare(text, Qt::CaseInsensitive) == 0
                                 : candidate.startsWith(text, Qt::CaseInsensitive);
}

} // namespace ORVTListview
