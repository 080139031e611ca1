#include "EditorViewMenu.h"

#include "ProblemWalk.h"
#include "ProjectView.h"
#include "workbench/settings/TypingHelps.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QMetaProperty>
#include <QtGui/QAction>

namespace ORVTListview {

EditorViewMenu::EditorViewMenu(ProjectView &views, ProblemWalk &walk, QWidget *parent)
    : QMenu(tr("&Editor"), parent)
    , m_views(views)
{
    addSwitch(tr("Line &Numbers"), "lineNumbersVisible");
    addSwitch(tr("&Current Line"), "currentLineShown");
    addSwitch(tr("Pairs and &Uses"), "pairsShown");
    addSwitch(tr("&Indent Guides"), "indentGuidesShown");
    addSwitch(tr("Blan&ks"), "blanksShown");
    addSwitch(tr("Readable C&olours"), "adaptsColours");
    addSwitch(tr("&Folding"), "foldingEnabled");
    addSwitch(tr("Live &Values"), "liveValuesShown");
    addSeparator();
    addSwitch(tr("In&dent While Typing"), "autoIndent");
    addSwitch(tr("Smart &Home"), "smartHome");
    addSwitch(tr("Drop Blanks at Line &Ends"), "trimsBlanks");
    addSwitch(tr("&Word List While Typing"), "wordListOpensItself");
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

// The settings switch some of them, too.
void EditorViewMenu::addSwitch(const QString &text, const char *name)
{
    const CodeView &view = current();
    const QMetaObject &meta = CodeView::staticMetaObject;
    const QMetaProperty property = meta.property(meta.indexOfProperty(name));
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setChecked(property.read(&view).toBool());
    const QMetaObject &shown = QAction::staticMetaObject;
    connect(&view, property.notifySignal(), action,
            shown.method(shown.indexOfSlot("setChecked(bool)")));
    connect(action, &QAction::toggled, this, [this, property](bool on) {
        m_views.programs().forEach([&](CodeView &each) { property.write(&each, on); });
    });
}

} // namespace ORVTListview
