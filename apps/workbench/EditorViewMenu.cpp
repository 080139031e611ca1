#include "EditorViewMenu.h"

#include <ORVTListview/CodeView.h>

#include <QtGui/QAction>

namespace ORVTListview {

EditorViewMenu::EditorViewMenu(CodeView &view, QWidget *parent)
    : QMenu(tr("&Editor"), parent)
    , m_view(view)
{
    addSwitch(tr("Line &Numbers"), view.lineNumbersVisible(), &CodeView::setLineNumbersVisible);
    addSwitch(tr("&Current Line"), view.currentLineShown(), &CodeView::setCurrentLineShown);
    addSwitch(tr("&Pairs and Uses"), view.pairsShown(), &CodeView::setPairsShown);
}

void EditorViewMenu::switchOn(CodeView &view)
{
    view.setLineNumbersVisible(true);
    view.setCurrentLineShown(true);
    view.setPairsShown(true);
}

void EditorViewMenu::addSwitch(const QString &text, bool isOn, void (CodeView::*set)(bool))
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setChecked(isOn);
    connect(action, &QAction::toggled, &m_view, set);
}

} // namespace ORVTListview
