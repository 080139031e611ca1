#pragma once

#include "project/Comparison.h"

#include <QtWidgets/QTreeWidget>

namespace ORVTListview {

// Lines that differ beside each other, one that is new or gone with its sign.
class ComparisonView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ComparisonView(QWidget *parent = nullptr);

    void setTitles(const QString &before, const QString &after);

    // Behind what is shown, under a heading.
    void append(const QString &heading, const QList<ComparedLine> &lines);

private:
    void appendLine(const ComparedLine &line);
};

} // namespace ORVTListview
