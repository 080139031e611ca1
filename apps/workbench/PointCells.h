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
class ProjectDocument;

// The cells of the point tables as users edit them; names excepted, which are changed by
// renaming. What is entered at once is one step.
class PointCells : public QObject
{
    Q_OBJECT

public:
    PointCells(ORVListView &list, ProjectDocument &document);

    bool isOn() const;
    void setOn(bool on);

    // Also after a change of language.
    void setRules();

private:
    const Project *project() const;
    qsizetype pointOf(const ListItem &item) const;
    void answer(const ListItem &item, qint16 column, const QString &text, QString &refusal) const;
    void take(const QList<CellChange> &changes);
    QStringList names() const;

    ORVListView &m_list;
    ListGrid &m_grid;
    ProjectDocument &m_document;
};

} // namespace ORVTListview
