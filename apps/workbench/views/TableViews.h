#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QList>
#include <QtCore/QObject>

#include <map>

namespace ORVTListview {

class ORVListView;
class PointCells;
class PointTables;
class Project;
class ProjectDocument;
class ViewDock;
class Workplace;

// The tables of a project, each with a view of its own that is made when it is opened first.
// One that nobody sees is brought up to date once it is seen.
class TableViews : public QObject
{
    Q_OBJECT

public:
    // Belongs to the workplace.
    TableViews(ProjectDocument &document, Workplace &workplace);

    // The project must live until the next call.
    void setProject(Project *project);

    // The dock of a type's table, hidden where it is a new one; not for dsCode.
    ViewDock &dock(LwType type);

    // Those that are shown, by the names of their types.
    QStringList opened() const;

    // Shows them; names that are none are passed over.
    void open(const QStringList &names);

    // Null for a view that is no table.
    PointTables *tableIn(const ViewDock *dock) const;

    // For all tables: whether cells are edited, and whether outputs show their overrides.
    bool editsCells() const { return m_editsCells; }
    void setEditsCells(bool on);
    bool showsOverrides() const { return m_showsOverrides; }
    void setShowsOverrides(bool on);

    // The project's tables have changed.
    void refresh();

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void made(ORVTListview::ORVListView &list, ORVTListview::PointTables &tables);

    // Of any of the tables: as PointTables.
    void renameWanted(ORVTListview::LwType type, qsizetype row, const QString &name);
    void pointWanted(ORVTListview::LwType type, const QString &name, qsizetype row);
    void refused(const QString &reason);

private:
    struct Table
    {
        ViewDock *dock = nullptr;
        PointTables *points = nullptr;
        PointCells *cells = nullptr;
        bool isStale = false;
    };

    Table &make(LwType type);
    void relay(const PointTables &points);
    void update(Table &table);
    ViewDock *neighbour() const;

    ProjectDocument &m_document;
    Workplace &m_workplace;
    Project *m_project = nullptr;
    std::map<LwType, Table> m_tables;
    bool m_editsCells = false;
    bool m_showsOverrides = false;
};

} // namespace ORVTListview
