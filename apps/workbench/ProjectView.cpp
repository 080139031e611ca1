#include "ProjectView.h"

#include "PointTables.h"
#include "project/Project.h"
#include "shared/points/DisplayNames.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/views/CategoryMenu.h"
#include "workbench/views/ProgramNodes.h"
#include "workbench/views/ProgramViews.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ProjectView::ProjectView(ProjectDocument &document, QWidget *parent)
    : QSplitter(parent)
    , m_tree(new ORVTreeview(this))
    , m_nodes(new ProgramNodes(*m_tree))
    , m_workplace(new Workplace(this))
    , m_programs(new ProgramViews(*m_workplace))
    , m_tables(new TableViews(document, *m_workplace))
{
    setChildrenCollapsible(false);
    setStretchFactor(1, 1);
    m_tree->InitStrings();
    const int width = treeWidth();
    setSizes({width, 5 * width});
    connect(m_tree, &ORVTreeview::NodeClick, this, &ProjectView::followTree);
    connect(m_workplace, &Workplace::currentChanged, this, &ProjectView::followViews);
    connect(m_workplace, &Workplace::entered, this, [this](const ViewDock *dock) {
        if (dock == m_looked)
            m_looked = nullptr;
    });
    nameParts();
    m_workplace->show(dockOf(dsCode));
}

// The categories are wholly seen in any language.
int ProjectView::treeWidth() const
{
    const int usual = fontMetrics().averageCharWidth() * 42;
    const QAbstractItemView *nodes = m_tree->findChild<QTreeView *>();
    const int room = fontMetrics().averageCharWidth() * 3;
    return std::max(usual, nodes->sizeHintForColumn(0) + room);
}

ORVListView &ProjectView::program() const
{
    return m_programs->view(m_programs->current());
}

ORVListView &ProjectView::current() const
{
    const ViewDock *dock = m_workplace->current();
    return dock ? dock->view() : program();
}

PointTables *ProjectView::currentTable() const
{
    return m_tables->tableIn(m_workplace->current());
}

ViewDock &ProjectView::dockOf(LwType type) const
{
    return type == dsCode ? m_programs->dock(m_programs->current()) : m_tables->dock(type);
}

void ProjectView::setProject(Project &project)
{
    m_project = &project;
    takePrograms();
    m_tables->setProject(&project);
    m_tree->SetCollectionRenamable(window(), project.points(dsVariable), project.points(dsConst),
                                   project.points(dsInput), project.points(dsOutput),
                                   project.points(dsNvi));
    m_tree->setStringIndexCollection(project.indexedNames());
    applyFunctionWords();
}

void ProjectView::applyFunctionWords()
{
    m_tree->setIsSqrtSupported(m_project->controller().isSqrtSupported ? u"true"_s : u"false"_s);
    refillWords();
}

void ProjectView::refillWords()
{
    for (const ProjectProgram &each : m_programs->list())
        m_programs->view(each.id).RefillListviewWithWordList();
}

void ProjectView::takePrograms()
{
    m_programs->setList(m_project->programs());
    m_nodes->setList(m_project->programs());
    applyFunctionWords(); // an editor that is made forgets them for all
}

// A category shows its table or the program; the device and the pages show nothing.
void ProjectView::followTree(const Node *node)
{
    if (!m_project)
        return;
    if (const qint32 program = ProgramNodes::programOf(node); program > 0)
        look(m_programs->dock(program));
    else if (const auto type = CategoryMenu::typeOf(node))
        look(dockOf(*type));
}

void ProjectView::look(ViewDock &dock)
{
    const bool isOpened = dock.isHidden();
    m_workplace->show(dock);
    if (!isOpened)
        return;
    if (ViewDock *former = std::exchange(m_looked, &dock); former && !former->isFloating())
        former->close();
}

void ProjectView::showType(LwType type)
{
    if (!m_project || !isType(type))
        return;
    m_workplace->show(dockOf(type));
    followViews(); // the project may be another one
}

void ProjectView::enterType(LwType type)
{
    if (m_project && isType(type))
        m_workplace->enter(dockOf(type));
}

void ProjectView::enterProgram(qint32 program)
{
    if (m_project)
        m_workplace->enter(m_programs->dock(program));
}

void ProjectView::followViews()
{
    const LwType type = current().CurrentType();
    if (m_project) {
        Node *node = currentNode();
        m_tree->setSelectedItem(node);
        node->EnsureVisible();
    }
    Q_EMIT shown(type);
}

// That of the program itself, unless users have folded the programs.
Node *ProjectView::currentNode() const
{
    const LwType type = current().CurrentType();
    Node *category = m_tree->Nodes()->Item(m_tree->GetItemKey(static_cast<qint16>(type)));
    Node *program = type == dsCode ? m_nodes->nodeOf(m_programs->current()) : nullptr;
    return program && category->Expanded() ? program : category;
}

void ProjectView::refresh()
{
    refillWords();
    m_tables->refresh();
}

void ProjectView::takePoint(LwType type, const QString &name)
{
    if (!currentTable()) {
        QMimeData text;
        text.setText(name);
        program().RTextBox()->commands().paste(text); // with a snapshot, as Ctrl+V
    } else {
        showType(type);
        currentTable()->goTo(name);
    }
    m_workplace->enter(*m_workplace->current());
}

// For screen readers; the component has its tree within.
void ProjectView::nameParts()
{
    m_workplace->setAccessibleName(tr("Views"));
    m_tree->setAccessibleName(tr("Project"));
    for (QTreeView *nodes : m_tree->findChildren<QTreeView *>())
        nodes->setAccessibleName(m_tree->accessibleName());
}

void ProjectView::retranslate()
{
    nameParts();
    m_tree->ReInitializeStrings();
    m_programs->retranslate();
    m_tables->retranslate();
    m_workplace->retranslate();
}

} // namespace ORVTListview
