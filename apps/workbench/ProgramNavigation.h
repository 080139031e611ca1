#pragma once

#include "ListedName.h"
#include "ResultPlace.h"
#include "project/analysis/ProgramTokens.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

class QMenu;

namespace ORVTListview {

class CheckResults;
class ProgramAnalyses;
class Project;
class ProjectView;

// The ways from a name of a program to its point, to its other uses, and back.
class ProgramNavigation : public QObject
{
    Q_OBJECT

public:
    ProgramNavigation(ProjectView &view, ProgramAnalyses &analyses, CheckResults &results,
                      QObject *parent);

    // The project must live until the next call. There is no way back to a former one.
    void setProject(const Project *project);

    void fillMenu(QMenu &menu);

    // The name in which the program's caret stands, where no point has it; else empty.
    QString unknownName() const;

    // To a place of a program, or a row of a table; back() comes from there.
    void goTo(const ResultPlace &place);

    // Of the point that is chosen: lists all, or goes to the first in a program.
    void findUses();
    void goToFirstUse();

    // Uses that are listed and that editing has made others, or none, are so in the list, too.
    void followUses();

Q_SIGNALS:
    // The caret may have moved.
    void moved();

    // Why there is no way.
    void told(const QString &text);

private:
    struct NamedPoint
    {
        LwType type = dsCode; // for none of the project
        QString name;
    };

    void goToPoint();
    void back();
    void findText();
    void moveLines(qint32 program, const ReplacedLines &lines);

    void show(const ResultPlace &place);
    void showLine(const ResultPlace &place);
    void remember();
    ResultPlace current() const;
    NamedPoint pointInProgram() const;
    NamedPoint pointInTable() const;
    NamedPoint point() const;
    qsizetype rowOf(const NamedPoint &point) const;
    QList<ShownUse> usesOf(const NamedPoint &point) const;

    ProjectView &m_view;
    ProgramAnalyses &m_analyses;
    CheckResults &m_results;
    const Project *m_project = nullptr;
    ListedName m_listed;
    QList<ResultPlace> m_former; // the last one is the next to go back to
};

} // namespace ORVTListview
