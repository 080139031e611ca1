#pragma once

#include "project/SimulatedController.h"

#include <ORVTListview/Types.h>

#include <QtCore/QObject>

class QTimer;

namespace ORVTListview {

class ListItem;
class ORVListView;
class Project;

// Shows a project's points in the tables of an ORVListView, reads their values from
// the simulated controller, and takes the names that users give them.
class PointTables : public QObject
{
    Q_OBJECT

public:
    explicit PointTables(ORVListView &list);

    // The project must live until the next call.
    void setProject(Project *project);

    // Whether outputs show their hardware overrides; at first as the project says.
    bool showsOverrides() const { return m_showsOverrides; }
    void setShowsOverrides(bool on);

    // Shows the type's table; none for dsCode.
    void show(LwType type);

    // The points that there are now, in the table that is shown.
    void showRows();

    // The rows of the table that is shown, anew.
    void fill();
    void fitColumns();

    // Selects the point's row in the table that is shown.
    void goTo(const QString &name);

    // Brings a row of that table into sight, from 0; nothing for one that is not there.
    void showRow(qsizetype row);

    // The point of the selected row, from 0; -1 for none.
    qsizetype selectedPoint() const;

    // Asks the controller, which answers after a while; one question at a time.
    void read(LwType type);
    bool isReading() const;

    // Begins to edit the name in the selected row.
    void editName();

Q_SIGNALS:
    void readingStarted();
    void readingFinished();

    // A point is to have another name, which it can have.
    void renameWanted(ORVTListview::LwType type, qsizetype row, const QString &name);

    // A name was not taken.
    void refused(const QString &reason);

private:
    void fillRow(ListItem &item, qsizetype row);
    void clearRow(ListItem &item);
    void finishReading();
    void allowEditing(qint16 &cancel);
    void takeName(qint16 &cancel, const QString &name);
    void correctName(LwType type, const QString &typed);
    qsizetype pointOf(const ListItem *item) const;

    ORVListView &m_list;
    Project *m_project = nullptr;
    SimulatedController m_controller;
    QTimer *m_answer;
    LwType m_readType = dsCode;
    bool m_showsOverrides = false;
    ListItem *m_edited = nullptr; // the list owns it
};

} // namespace ORVTListview
