#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QSet>
#include <QtCore/QTimer>

class QModelIndex;

namespace ORVTListview {

class ListItem;
class ORVListView;
class PointReading;
class Project;
struct ProjectRow;

// Shows a project's points in the tables of an ORVListView, with their values as they are
// read, and takes the names that users give them.
class PointTables : public QObject
{
    Q_OBJECT

public:
    explicit PointTables(ORVListView &list);

    // The project must live until the next call.
    void setProject(Project *project);

    // What reads the values; it lives as long as this.
    void setReading(PointReading &reading);

    // Whether outputs show their hardware overrides; at first as the project says.
    bool showsOverrides() const { return m_showsOverrides; }
    void setShowsOverrides(bool on);

    // Shows the type's table; none for dsCode.
    void show(LwType type);

    // The points that there are now, in the table that is shown.
    void showRows();

    // The rows of the table that is shown, anew. Columns grow with what comes; none shrinks.
    void fill();
    void fitColumns();

    // What the table is called in the language of now.
    QString title() const;

    // Selects the point's row in the table that is shown.
    void goTo(const QString &name);

    // Brings a row of that table into sight, from 0; nothing for one that is not there. Filters
    // that hide it, or the row of goTo(), are emptied.
    void showRow(qsizetype row);

    // What the view shows, and whether the user works in it.
    LwType type() const;
    bool hasFocus() const;

    // The point of the selected row, from 0; -1 for none.
    qsizetype selectedPoint() const;

    // The points of all selected rows.
    QList<qsizetype> selectedPoints() const;

    // Begins to edit the name in the selected row, which need not have a point yet.
    bool canName() const;
    void editName();

Q_SIGNALS:
    // A point is to have another name, which it can have.
    void renameWanted(ORVTListview::LwType type, qsizetype row, const QString &name);

    // A row behind the points was given a name, which a new point can have; from 0.
    void pointWanted(ORVTListview::LwType type, const QString &name, qsizetype row);

    // A name was not taken.
    void refused(const QString &reason);

private:
    void choose(ListItem &item);
    void showAll();
    void showCount(qsizetype points);
    void fillRow(ListItem &item, qsizetype row, QSet<qint16> &grown);
    void clearRow(ListItem &item);
    void fillValues();
    void showBusy();
    void showOld(const QList<ProjectRow> &rows, qint16 column);
    void widen(qint16 column);
    bool grow(qint16 column);
    void editClicked(const QModelIndex &cell);
    void allowEditing(qint16 &cancel);
    void takeName(qint16 &cancel, const QString &name);
    void correctName(LwType type, const QString &typed);
    QString nameOf(LwType type, qsizetype row) const;
    qsizetype rowOf(const ListItem *item) const;
    qsizetype pointOf(const ListItem *item) const;

    ORVListView &m_list;
    Project *m_project = nullptr;
    PointReading *m_reading = nullptr;
    QTimer m_soon; // shows what was read
    bool m_showsOverrides = false;
    ListItem *m_edited = nullptr;    // the list owns it
    QPersistentModelIndex m_clicked; // twice
};

} // namespace ORVTListview
