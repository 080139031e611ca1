#include "LinesMenu.h"

#include "ProjectView.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

#include <QtGui/QAction>

namespace ORVTListview {

LinesMenu::LinesMenu(const ProjectView &views, QWidget *parent)
    : QMenu(tr("&Lines"), parent)
    , m_views(views)
{
    addMoves();
    addSeparator();
    addTexts();
    views.programs().withEach(this, [this](qint32, ORVListView &view) {
        connect(view.codeView(), &CodeView::commandsEnabledChanged, this, &LinesMenu::refresh);
    });
    connect(&views, &ProjectView::shown, this, &LinesMenu::refresh);
    refresh();
}

CodeView &LinesMenu::current() const
{
    return *m_views.program().codeView();
}

void LinesMenu::addMoves()
{
    add(tr("Move &Up"), Qt::ALT | Qt::Key_Up, [](CodeView &view) { view.moveLines(-1); });
    add(tr("Move &Down"), Qt::ALT | Qt::Key_Down, [](CodeView &view) { view.moveLines(1); });
    add(tr("Du&plicate"), Qt::CTRL | Qt::Key_D, &CodeView::duplicateLines);
    add(tr("D&elete"), Qt::CTRL | Qt::SHIFT | Qt::Key_K, &CodeView::deleteLines);
    add(tr("&Join"), Qt::CTRL | Qt::Key_J, &CodeView::joinLines);
    add(tr("&Sort"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, &CodeView::sortLines);
}

void LinesMenu::addTexts()
{
    add(tr("&Comment"), Qt::CTRL | Qt::Key_K, &CodeView::toggleComment);
    add(tr("&Tidy"), Qt::CTRL | Qt::Key_T, &CodeView::tidy);
    add(tr("C&apital Letters"), Qt::CTRL | Qt::Key_U, &CodeView::upperCase);
    add(tr("S&mall Letters"), Qt::CTRL | Qt::SHIFT | Qt::Key_U, &CodeView::lowerCase);
}

void LinesMenu::add(const QString &text, const QKeySequence &keys,
                    const std::function<void(CodeView &view)> &command)
{
    addAction(text, keys, this, [this, command] {
        command(current());
        Q_EMIT acted();
    });
}

void LinesMenu::refresh()
{
    for (QAction *action : actions())
        action->setEnabled(current().commandsEnabled());
}

} // namespace ORVTListview
