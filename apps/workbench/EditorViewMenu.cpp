#include "EditorViewMenu.h"

#include "ProblemWalk.h"
#include "ProjectView.h"
#include "workbench/settings/TypingHelps.h"
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
    addSwitch(tr("Line &Numbers"), view.lineNumbersVisible(), &CodeView::setLineNumbersVisible,
              &CodeView::lineNumbersVisibleChanged);
    addSwitch(tr("&Current Line"), view.currentLineShown(), &CodeView::setCurrentLineShown,
              &CodeView::currentLineShownChanged);
    addSwitch(tr("Pairs and &Uses"), view.pairsShown(), &CodeView::setPairsShown,
              &CodeView::pairsShownChanged);
    addSwitch(tr("&Indent Guides"), view.indentGuidesShown(), &CodeView::setIndentGuidesShown,
              &CodeView::indentGuidesShownChanged);
    addSwitch(tr("Blan&ks"), view.blanksShown(), &CodeView::setBlanksShown,
              &CodeView::blanksShownChanged);
    addSwitch(tr("Readable C&olours"), view.adaptsColours(), &CodeView::setAdaptsColours,
              &CodeView::adaptsColoursChanged);
    addSwitch(tr("&Folding"), view.foldingEnabled(), &CodeView::setFoldingEnabled,
              &CodeView::foldingEnabledChanged);
    addSwitch(tr("Live &Values"), view.liveValuesShown(), &CodeView::setLiveValuesShown,
              &CodeView::liveValuesShownChanged);
    addSeparator();
    addSwitch(tr("In&dent While Typing"), view.autoIndent(), &CodeView::setAutoIndent,
              &CodeView::autoIndentChanged);
    addSwitch(tr("Smart &Home"), view.smartHome(), &CodeView::setSmartHome,
              &CodeView::smartHomeChanged);
    addSwitch(tr("Drop Blanks at Line &Ends"), view.trimsBlanks(), &CodeView::setTrimsBlanks,
              &CodeView::trimsBlanksChanged);
    addSwitch(tr("&Word List While Typing"), view.wordListOpensItself(),
              &CodeView::setWordListOpensItself, &CodeView::wordListOpensItselfChanged);
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
    view.setAdaptsColours(true);
    TypingHelps().into(view);
    view.setKeepsText(true); // what is saved is what was typed
    view.setHasOwnUndo(true);
    view.setZoom(100); // the wheel with Ctrl
}

void EditorViewMenu::add(const QString &text, const QKeySequence &keys,
                         const std::function<void()> &command)
{
    addAction(text, keys, this, command);
}

void EditorViewMenu::addSwitch(const QString &text, bool isOn, Switch set, Switch changed)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setChecked(isOn);
    connect(&current(), changed, action, &QAction::setChecked); // the settings switch, too
    connect(action, &QAction::toggled, this, [this, set](bool on) {
        m_views.programs().forEach([set, on](CodeView &view) { (view.*set)(on); });
    });
}

} // namespace ORVTListview
