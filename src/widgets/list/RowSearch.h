#pragma once

#include <QtCore/QString>

namespace ORVTListview {

class ReportModel;

// Where and how a row is looked for. Letter case never matters.
struct RowSearch
{
    enum class Field { Text, SubItem, Tag };
    enum class Match { Whole, Beginning };

    QString text;
    Field field = Field::Text;
    Match match = Match::Whole;

    // The position of the first row from start on, or -1. A row's sub-items are
    // those that columns show.
    int find(const ReportModel &model, int start) const;

private:
    bool matches(const QString &candidate) const;
    bool matchesRow(const ReportModel &model, int position) const;
};

} // namespace ORVTListview
