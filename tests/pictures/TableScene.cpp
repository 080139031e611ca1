// The point tables of all types with the rows of the sample project, and the caption
// line in its states.

#include "pictures/Scenes.h"
#include "project/ProjectColumns.h"
#include "project/ProjectReader.h"
#include "shared/points/DisplayNames.h"

#include <ORVTListview/ORVTListview.h>

#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr qint16 mostRows = 12;

void fill(ORVListView &list, const QList<ProjectRow> &rows)
{
    list.ChangeListviewNumber(static_cast<qint16>(std::min<qsizetype>(rows.size(), mostRows)));
    const int columns = list.ColumnHerders()->Count();
    for (int row = 1; row <= list.ListItems()->Count(); ++row) {
        const QVariantList &cells = rows.at(row - 1).cells;
        for (int column = 1; column < columns && column <= cells.size(); ++column)
            list.ListItems()->Item(row)->setSubItem(column, cellText(cells.at(column - 1)));
    }
}

// As wide as its columns and as high as its rows.
void fit(ORVListView &list)
{
    QString message;
    list.resize(100, 100);
    list.UpdateListViewWidth(message);
    const ReportList &table = *list.listView();
    const int rows = table.verticalHeader()->length();
    const int frame = 2 * table.frameWidth();
    const int line = list.sizeHint().height() - table.sizeHint().height();
    list.resize(std::max(300, table.horizontalHeader()->length() + frame + 2),
                line + table.horizontalHeader()->sizeHint().height() + rows + frame + 4);
    list.UpdateListViewWidth(message);
}

void show(Sheet &sheet, const QString &caption, ORVListView &list)
{
    list.show();
    sheet.add(caption, list);
}

} // namespace

void tablesScene(Sheet &sheet)
{
    sheet.setColumns(2);
    const ProjectContents project = readProject(QStringLiteral(ORVT_SAMPLE_PROJECT));
    for (int type = dsVariable; type <= dsOutputParam; ++type) {
        for (const bool hasOverrides : {false, true}) {
            const auto lwType = static_cast<LwType>(type);
            if (hasOverrides && lwType != dsOutput)
                continue;
            ORVListView list;
            list.setIsHOASupported(hasOverrides);
            list.setListviewType(lwType);
            fill(list, project.rows.value(lwType));
            list.SetImage(hasOverrides);
            fit(list);
            list.setSelectedItem(list.ListItems()->Item(std::min(2, list.ListItems()->Count())));
            show(sheet, displayName(type) + (hasOverrides ? u", overrides, busy"_s : QString()),
                 list);
        }
    }
}

void tableStatesScene(Sheet &sheet)
{
    const ProjectContents project = readProject(QStringLiteral(ORVT_SAMPLE_PROJECT));
    ORVListView list;
    list.setListviewType(dsInput);
    fill(list, project.rows.value(dsInput));
    fit(list);
    list.resize(430, 190);
    list.setSelectedItem(list.ListItems()->Item(2));
    show(sheet, u"Idle, too small for its rows"_s, list);
    list.SetImage(true);
    list.setFocus();
    list.activateWindow();
    show(sheet, u"Busy, with the focus"_s, list);
    list.findChild<QWidget *>(u"ImgRead"_s)->setFocus();
    show(sheet, u"The read button has the focus"_s, list);
    list.setEnabled(false);
    show(sheet, u"Disabled"_s, list);
    list.setEnabled(true);
    list.setCaption(
        u"Inputs of the air-handling unit on the roof of the north wing, second half"_s);
    list.resize(300, 190);
    show(sheet, u"A long caption"_s, list);
    list.setListviewType(dsCode);
    list.setCodeText(u"IF SupplyTemp < 18\r\n    HeatValve = 100\r\nENDIF"_s);
    show(sheet, u"The code"_s, list);
}
