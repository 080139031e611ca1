#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QWidget;

namespace ORVTListview {

class ProgramAnalyses;
class ProjectView;
class RichTextBox;

// Puts the caret to the next problem, or for -1 the one before it, first in the program that is
// used, then in the others, round at the ends.
class ProblemWalk : public QObject
{
    Q_OBJECT

public:
    // Both outlive it.
    ProblemWalk(ProjectView &views, const ProgramAnalyses &analyses, QObject *parent);

    // Where none is known yet and the analysis is at work, it comes when that is done, unless
    // the caret or the focus has moved meanwhile.
    void go(int step);

    // Another project comes: nothing is waited for any more.
    void giveUp();

Q_SIGNALS:
    // There is none.
    void told(const QString &text);

    void moved();

private:
    void goOn();

    ProjectView &m_views;
    const ProgramAnalyses &m_analyses;
    int m_wanted = 0;            // when the analysis is done; 0 for nothing
    QPointer<RichTextBox> m_box; // where it was wanted
    QPointer<QWidget> m_focus;
    int m_caret = 0;
};

} // namespace ORVTListview
