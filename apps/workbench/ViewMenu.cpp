#include "ViewMenu.h"

#include "EditorViewMenu.h"
#include "LanguageMenu.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

ViewMenu::ViewMenu(ProjectView &views, ProblemWalk &walk, const Languages &languages,
                   QWidget *parent)
    : QMenu(tr("&View"), parent)
{
    auto *shown = new EditorViewMenu(views, walk, this);
    addMenu(shown);
    connect(shown, &QMenu::triggered, this, &ViewMenu::editorChanged);
    auto *spoken = new LanguageMenu(languages, this);
    addMenu(spoken);
    connect(spoken, &LanguageMenu::chosen, this, &ViewMenu::languageChosen);
    addSeparator();
    addAction(tr("&Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
              &ViewMenu::settingsWanted);
}

} // namespace ORVTListview
