#include "workbench/saving/ComparisonView.h"

#include "workbench/PlainTexts.h"
#include "workbench/RoomyRows.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QHeaderView>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

enum Column { Line, Sign, Before, After };

// The ground with a breath of a colour, on which text is read as well.
QColor tinted(const QColor &ground, const QColor &colour)
{
    constexpr int part = 5; // of so many
    const auto mix = [](int one, int other) { return ((part - 1) * one + other) / part; };
    return {mix(ground.red(), colour.red()), mix(ground.green(), colour.green()),
            mix(ground.blue(), colour.blue())};
}

QString signOf(ComparedLine::Kind kind)
{
    switch (kind) {
    case ComparedLine::Changed:
        return u"~"_s;
    case ComparedLine::Removed:
        return u"−"_s;
    case ComparedLine::Added:
        return u"+"_s;
    case ComparedLine::Gap:
        return u"…"_s;
    case ComparedLine::Same:
        break;
    }
    return {};
}

} // namespace

ComparisonView::ComparisonView(QWidget *parent)
    : QTreeWidget(parent)
{
    setItemDelegate(new RoomyRows(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setColumnCount(4);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
}

void ComparisonView::setTitles(const QString &before, const QString &after)
{
    setHeaderLabels({tr("Line"), tr("Change"), before, after});
}

void ComparisonView::append(const QString &heading, const QList<ComparedLine> &lines)
{
    if (lines.isEmpty())
        return;
    auto *item = new QTreeWidgetItem(this, {QString(), QString(), heading});
    item->setData(Line, Qt::AccessibleTextRole, heading);
    QFont bold = font();
    bold.setBold(true);
    item->setFont(Before, bold);
    item->setFirstColumnSpanned(false);
    for (const ComparedLine &line : lines)
        appendLine(line);
    for (const int column : {Line, Sign})
        resizeColumnToContents(column);
    header()->resizeSection(
        Before, (width() - header()->sectionSize(Line) - header()->sectionSize(Sign)) / 2);
}

void ComparisonView::appendLine(const ComparedLine &line)
{
    const QString number = line.line > 0 ? QString::number(line.line) : QString();
    auto *item = new QTreeWidgetItem(this, {number, signOf(line.kind), line.before, line.after});
    item->setTextAlignment(Line, Qt::AlignRight | Qt::AlignVCenter);
    if (number.isEmpty()) // there is nothing to tell else
        item->setData(Line, Qt::AccessibleTextRole, signOf(line.kind));
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (const int column : {Before, After}) {
        item->setFont(column, fixed);
        item->setToolTip(column, PlainTexts::toolTip(item->text(column))); // it may be cut
    }
    const QColor ground = palette().color(QPalette::Base);
    if (line.kind == ComparedLine::Removed || line.kind == ComparedLine::Changed)
        item->setBackground(Before, tinted(ground, Qt::red));
    if (line.kind == ComparedLine::Added || line.kind == ComparedLine::Changed)
        item->setBackground(After, tinted(ground, Qt::green));
}

} // namespace ORVTListview
