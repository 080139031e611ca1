#pragma once

#include <QtCore/QLocale>
#include <QtWidgets/QMenu>

namespace ORVTListview {

class Languages;
class ProjectView;

// What the window looks like.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    // Both outlive the menu.
    ViewMenu(ProjectView &views, const Languages &languages, QWidget *parent);

Q_SIGNALS:
    // A command of the editor has been carried out.
    void editorChanged();

    void languageChosen(const QLocale &language);
    void settingsWanted();
};

} // namespace ORVTListview
