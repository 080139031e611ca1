#pragma once

#include <QtCore/QObject>

class QMenu;

namespace ORVTListview {

class PointReading;
class PointRenaming;
class PointTables;
class ProgramNavigation;
class ProjectView;
class ReportList;

// What the context menus of the tables, and their keys, offer for a point beside what the grid
// does.
class TableMenu : public QObject
{
    Q_OBJECT

public:
    struct Acts
    {
        ProjectView &view;
        PointRenaming &renaming;
        PointReading &reading;
        ProgramNavigation &navigation;
    };

    // All of them outlive this. To be made before the first table is.
    TableMenu(const Acts &acts, QObject *parent);

Q_SIGNALS:
    // Why a key has done nothing.
    void told(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void takeKeys(ReportList &list, const PointTables &table);
    void fill(QMenu &menu, PointTables &table);
    void addPoint(QMenu &menu, PointTables &table, bool isPoint);
    void addWays(QMenu &menu, bool isNamed);

    Acts m_acts;
};

} // namespace ORVTListview
