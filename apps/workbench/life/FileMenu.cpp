#include "workbench/life/FileMenu.h"

#include "workbench/export/Exporting.h"
#include "workbench/life/ProjectLife.h"
#include "workbench/life/RecentMenu.h"
#include "workbench/saving/ProjectSaving.h"

#include <QtGui/QAction>

namespace ORVTListview {

FileMenu::FileMenu(const Parts &parts, QWidget *parent)
    : QMenu(tr("&File"), parent)
{
    addOpening(parts);
    addSeparator();
    addSaving(parts);
    addSeparator();
    addOutput(parts);
    addSeparator();
    m_ofProject.append(addAction(tr("&Close Project"), QKeySequence(Qt::CTRL | Qt::Key_W),
                                 &parts.life, &ProjectLife::close));
    addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), parent->window(), &QWidget::close);
}

void FileMenu::addOpening(const Parts &parts)
{
    addAction(tr("&New Project…"), QKeySequence::New, &parts.life, &ProjectLife::create);
    addAction(tr("&Open Project…"), QKeySequence::Open, &parts.life, &ProjectLife::choose);
    auto *recent = new RecentMenu(parts.recent, this);
    addMenu(recent);
    // Queued: opening may make the menus anew.
    connect(recent, &RecentMenu::chosen, &parts.life, &ProjectLife::openRecent,
            Qt::QueuedConnection);
}

void FileMenu::addSaving(const Parts &parts)
{
    m_ofProject.append(
        addAction(tr("&Save"), QKeySequence::Save, &parts.saving, &ProjectSaving::save));
    m_ofProject.append(addAction(tr("Save &As…"), &parts.saving, &ProjectSaving::saveElsewhere));
}

void FileMenu::addOutput(const Parts &parts)
{
    m_ofProject.append(addAction(tr("&Export…"), &parts.exporting, &Exporting::exportShown));
    m_print = addAction(tr("&Print…"), QKeySequence::Print, &parts.exporting, &Exporting::print);
}

void FileMenu::follow(bool isProject, bool isProgram)
{
    for (QAction *action : m_ofProject)
        action->setEnabled(isProject);
    m_print->setEnabled(isProject && isProgram);
}

} // namespace ORVTListview
