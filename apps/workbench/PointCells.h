#pragma once

#include <ORVTListview/CellChange.h>
#include <ORVTListview/Types.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace ORVTListview {

class ListGrid;
class ListItem;
class ORVListView;
class Project;

// The cells of the point tables as users edit them; names excepted, which are changed by
// renaming. What is entered is in the project until it is closed.
class PointCells : public QObject
{
    Q_OBJECT

public:
    explicit PointCells(ORVListView &list);

    // The project must live until the next call.
    void setProject(Project *project) { m_project = project; }

    bool isOn() const;
    void setOn(bool on);

    // Also after a change of language.
    void setRules();

Q_SIGNALS:
    void changed();

private:
    qsizetype pointOf(const ListItem &item) const;
    void answer(const ListItem &item, QString &refusal) const;
    void take(const QList<CellChange> &changes);
    QStringList names() const;

    ORVListView &m_list;
    ListGrid &m_grid;
    Project *m_project = nullptr;
};

} // namespace ORVTListview
