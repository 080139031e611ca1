#pragma once

#include <QtGui/QKeySequence>
#include <QtWidgets/QMenu>

#include <functional>

namespace ORVTListview {

class CodeView;
class ProblemWalk;
class ProjectView;

// What the editors show beside the text, to be switched on and off, for all programs.
class EditorViewMenu : public QMenu
{
    Q_OBJECT

public:
    // Both outlive the menu.
    EditorViewMenu(ProjectView &views, ProblemWalk &walk, QWidget *parent);

    // What the workbench begins with.
    static void switchOn(CodeView &view);

private:
    void add(const QString &text, const QKeySequence &keys, const std::function<void()> &command);
    void addSwitch(const QString &text, const char *name); // of a property of CodeView

    CodeView &current() const;

    ProjectView &m_views;
};

} // namespace ORVTListview
