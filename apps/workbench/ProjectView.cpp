#include "ProjectView.h"

#include "PointCells.h"
#include "PointTables.h"
#include "project/Project.h"
#include "widgets/box/BoxCommands.h"

#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ProjectView::ProjectView(ProjectDocument &document, QWidget *parent)
    : QSplitter(parent)
    , m_tree(new ORVTreeview(this))
    , m_list(new ORVListView(this))
    , m_tables(new PointTables(*m_list))
    , m_cells(new PointCells(*m_list, document))
{
    setChildrenCollapsible(false);
    setStretchFactor(1, 1);
    const int treeWidth = fontMetrics().averageCharWidth() * 42;
    setSizes({treeWidth, 5 * treeWidth});
    m_list->setListviewType(dsCode);
    m_tree->InitStrings();
    m_list->InitStrings();
    connect(m_tree, &ORVTreeview::NodeClick, this, &ProjectView::followTree);
}

void ProjectView::setProject(Project &project)
{
    m_project = &project;
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
    m_list->RefillListviewWithWordList();
}

// A category shows its table or the program; the device and the pages show nothing.
void ProjectView::followTree(const Node *node)
{
    const int type = node->Tag().toInt();
    if (type >= dsCode && type <= dsOutputParam && type != m_list->CurrentType())
        showType(static_cast<LwType>(type));
}

void ProjectView::showType(LwType type)
{
    if (!m_project)
        return;
    m_tables->show(type);
    if (type == dsCode)
        applyFunctionWords(); // showing the program takes SQRT out of them
    Node *category = m_tree->Nodes()->Item(m_tree->GetItemKey(static_cast<qint16>(type)));
    m_tree->setSelectedItem(category);
    category->EnsureVisible();
    Q_EMIT shown(type);
}

void ProjectView::refresh()
{
    m_list->RefillListviewWithWordList();
    if (m_project && m_list->CurrentType() != dsCode)
        m_tables->showRows();
}

void ProjectView::takePoint(LwType type, const QString &name)
{
    if (m_list->CurrentType() == dsCode) {
        QMimeData text;
        text.setText(name);
        m_list->RTextBox()->commands().paste(text); // with a snapshot, as Ctrl+V
    } else {
        showType(type);
        m_tables->goTo(name);
    }
    m_list->setFocus();
}

void ProjectView::retranslate()
{
    m_tree->ReInitializeStrings();
    m_list->ReInitializeStrings();
    m_cells->setRules();
    if (m_project && m_list->CurrentType() != dsCode)
        m_tables->fill();
}

} // namespace ORVTListview
