#pragma once

#include <QtGui/QKeySequence>
#include <QtWidgets/QMenu>

#include <functional>

namespace ORVTListview {

class CodeView;
class ProjectView;

// What the editor does to lines and to the selection, with the keys that the workbench
// gives it. It can be chosen while the program may be changed.
class LinesMenu : public QMenu
{
    Q_OBJECT

public:
    LinesMenu(const ProjectView &views, QWidget *parent);

Q_SIGNALS:
    // A command has been carried out, and the caret may have moved.
    void acted();

private:
    void addMoves();
    void addTexts();
    void add(const QString &text, const QKeySequence &keys,
             const std::function<void(CodeView &view)> &command);
    CodeView &current() const;
    void refresh();

    const ProjectView &m_views;
};

} // namespace ORVTListview
