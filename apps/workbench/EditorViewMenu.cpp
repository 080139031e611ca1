#include "EditorViewMenu.h"

#include "ProblemWalk.h"
#include "ProjectView.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

#include <QtGui/QAction>

namespace ORVTListview {

EditorViewMenu::EditorViewMenu(ProjectView &views, ProblemWalk &walk, QWidget *parent)
    : QMenu(tr("&Editor"), parent)
    , m_views(views)
{
    const CodeView &view = current();
    addSwitch(tr("Line &Numbers"), view.lineNumbersVisible(), &CodeView::setLineNumbersVisible);
    addSwitch(tr("&Current Line"), view.currentLineShown(), &CodeView::setCurrentLineShown);
    addSwitch(tr("Pairs and &Uses"), view.pairsShown(), &CodeView::setPairsShown);
    addSwitch(tr("&Indent Guides"), view.indentGuidesShown(), &CodeView::setIndentGuidesShown);
    addSwitch(tr("Blan&ks"), view.blanksShown(), &CodeView::setBlanksShown);
    addSwitch(tr("Readable C&olours"), view.adaptsColours(), &CodeView::setAdaptsColours);
    addSwitch(tr("&Folding"), view.foldingEnabled(), &CodeView::setFoldingEnabled);
    addSwitch(tr("Live &Values"), view.liveValuesShown(), &CodeView::setLiveValuesShown);
    addSeparator();
    addSwitch(tr("In&dent While Typing"), view.autoIndent(), &CodeView::setAutoIndent);
    addSwitch(tr("Smart &Home"), view.smartHome(), &CodeView::setSmartHome);
    addSwitch(tr("Drop Blanks at Line &Ends"), view.trimsBlanks(), &CodeView::setTrimsBlanks);
    addSwitch(tr("&Word List While Typing"), view.wordListOpensItself(),
              &CodeView::setWordListOpensItself);
    addSeparator();
    add(tr("Normal Si&ze"), Qt::CTRL | Qt::Key_0,
        [this] { m_views.programs().forEach([](CodeView &each) { each.setZoom(100); }); });
    add(tr("Fold &All"), {}, [this] { current().foldAll(); });
    add(tr("Unfold A&ll"), {}, [this] { current().unfoldAll(); });
    addSeparator();
    add(tr("Next &Problem"), Qt::Key_F8, [&walk] { walk.go(1); });
    add(tr("P&revious Problem"), Qt::SHIFT | Qt::Key_F8, [&walk] { walk.go(-1); });
    addSeparator();
    add(tr("Toggle &Bookmark"), Qt::CTRL | Qt::Key_F2, [this] { current().toggleBookmark(); });
    add(tr("Ne&xt Bookmark"), Qt::CTRL | Qt::Key_F3, [this] { current().nextBookmark(); });
}

CodeView &EditorViewMenu::current() const
{
    return *m_views.program().codeView();
}

void EditorViewMenu::switchOn(CodeView &view)
{
    view.setLineNumbersVisible(true);
    view.setCurrentLineShown(true);
    view.setPairsShown(true);
    view.setFoldingEnabled(true);
    view.setIndentGuidesShown(true);
    view.setLiveValuesShown(true);
    view.setAutoIndent(true);
    view.setSmartHome(true);
    view.setTrimsBlanks(true);
    view.setAdaptsColours(true);
    view.setWordListOpensItself(true);
    view.setKeepsText(true); // what is saved is what was typed
    view.setHasOwnUndo(true);
    view.setZoom(100); // the wheel with Ctrl
}

void EditorViewMenu::add(const QString &text, const QKeySequence &keys,
                         const std::function<void()> &command)
{
    addAction(text, keys, this, command);
}

void EditorViewMenu::addSwitch(const QString &text, bool isOn, void (CodeView::*set)(bool))
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setChecked(isOn);
    connect(action, &QAction::toggled, this, [this, set](bool on) {
        m_views.programs().forEach([set, on](CodeView &view) { (view.*set)(on); });
    });
}

} // namespace ORVTListview
