#include "LinesMenu.h"

#include <ORVTListview/CodeView.h>

#include <QtGui/QAction>

namespace ORVTListview {

LinesMenu::LinesMenu(CodeView &view, QWidget *parent)
    : QMenu(tr("&Lines"), parent)
    , m_view(view)
{
    addMoves();
    addSeparator();
    addTexts();
    connect(&view, &CodeView::commandsEnabledChanged, this, &LinesMenu::setPossible);
    setPossible(view.commandsEnabled());
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
        command(m_view);
        Q_EMIT acted();
    });
}

void LinesMenu::setPossible(bool possible)
{
    for (QAction *action : actions())
        action->setEnabled(possible);
}

} // namespace ORVTListview
