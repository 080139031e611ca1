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

    // The rows of the table that is shown, anew.
    void fill();
    void fitColumns();

    // Selects the point's row in the table that is shown.
    void goTo(const QString &name);

    // Asks the controller, which answers after a while; one question at a time.
    void read(LwType type);
    bool isReading() const;

    // Begins to edit the name in the selected row.
    void editName();

Q_SIGNALS:
    void readingStarted();
    void readingFinished();

    // The name is in the project; the former one may be in the program.
    void renamed(ORVTListview::LwType type, const QString &former, const QString &name);

    // A name was not taken.
    void refused(const QString &reason);

private:
    void fillRow(ListItem &item, qsizetype row);
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
