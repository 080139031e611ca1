#pragma once

#include <QtCore/QLocale>
#include <QtWidgets/QMenu>

namespace ORVTListview {

class Languages;
class ProblemWalk;
class ProjectView;

// What the window looks like.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    // All of them outlive the menu.
    ViewMenu(ProjectView &views, ProblemWalk &walk, const Languages &languages, QWidget *parent);

Q_SIGNALS:
    // A command of the editor has been carried out.
    void editorChanged();

    void languageChosen(const QLocale &language);
    void settingsWanted();
};

} // namespace ORVTListview
