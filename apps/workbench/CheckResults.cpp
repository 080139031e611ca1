#include "CheckResults.h"

#include "workbench/RoomyRows.h"

#include <QtCore/QStringList>
#include <QtGui/QAccessible>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CheckResults::CheckResults(QWidget *parent)
    : QDockWidget(parent)
    , m_model(new CheckModel(this))
    , m_view(new QTreeView(this))
{
    setObjectName(u"CheckResults"_s);
    setAllowedAreas(Qt::BottomDockWidgetArea);
    setFeatures(DockWidgetClosable);
    m_view->setModel(m_model);
    m_view->setItemDelegate(new RoomyRows(m_view));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setFrameShape(QFrame::NoFrame);
    setWidget(m_view);
    connect(m_view, &QTreeView::clicked, this, &CheckResults::choose);
    connect(m_view, &QTreeView::activated, this, &CheckResults::choose);
    retranslate();
}

void CheckResults::showProblems(const Problems &problems)
{
    m_problems = problems;
    m_model->setProblems(problems.listed, problems.count);
    showModel();
}

void CheckResults::showStatements(const QList<ListedStatement> &statements)
{
    m_isEdited = false;
    m_model->setStatements(statements);
    showModel();
}

void CheckResults::showUses(const QList<ShownUse> &uses)
{
    m_model->setUses(uses);
    showModel();
}

// Hidden, too: the list may be shown again by itself.
void CheckResults::followProblems(const Problems &problems)
{
    m_problems = problems;
    if (!isAskedTrue())
        listProblems();
}

bool CheckResults::isAskedTrue() const
{
    switch (m_model->content()) {
    case CheckModel::Content::Statements:
        return !m_isEdited;
    case CheckModel::Content::Uses:
        return m_model->rowCount() > 0;
    case CheckModel::Content::Problems:
        break;
    }
    return false;
}

void CheckResults::keepUses(const IsTrue &isTrue)
{
    if (m_model->content() != CheckModel::Content::Uses)
        return;
    m_model->keepUses(isTrue);
    if (!isAskedTrue())
        listProblems();
}

void CheckResults::forgetUses()
{
    if (m_model->content() == CheckModel::Content::Uses)
        listProblems();
}

void CheckResults::listProblems()
{
    const int scrolled = m_view->verticalScrollBar()->value();
    m_model->setProblems(m_problems.listed, m_problems.count);
    m_view->setHeaderHidden(true);
    m_view->verticalScrollBar()->setValue(scrolled);
    describe();
    if (!isHidden())
        fitColumns();
}

void CheckResults::setPrograms(const ProgramList &programs)
{
    m_model->setPrograms(programs);
    fitColumns();
}

void CheckResults::moveLines(qint32 program, const ReplacedLines &lines)
{
    m_model->moveLines(program, lines);
}

void CheckResults::clear()
{
    m_problems = {};
    m_model->setProblems({}, 0);
    hide();
}

void CheckResults::showEvent(QShowEvent *event)
{
    fitColumns();
    QDockWidget::showEvent(event);
}

void CheckResults::retranslate()
{
    setWindowTitle(tr("Results"));
    m_view->setAccessibleName(tr("Results"));
    m_model->retranslate();
    fitColumns();
}

void CheckResults::showModel()
{
    m_view->setHeaderHidden(m_model->content() == CheckModel::Content::Problems);
    fitColumns();
    m_view->scrollToTop();
    show();
    describe();
    QAccessibleEvent alert(m_view, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

// The focus stays where it is, so a screen reader is told the first row.
void CheckResults::describe()
{
    QStringList cells;
    for (int column = 0; column < m_model->columnCount(); ++column)
        cells.append(m_model->index(0, column).data().toString());
    m_view->setAccessibleDescription(cells.join(u", "_s));
}

void CheckResults::fitColumns()
{
    for (int column = 0; column < m_model->columnCount(); ++column)
        m_view->resizeColumnToContents(column);
}

void CheckResults::choose(const QModelIndex &index)
{
    const ResultPlace place = m_model->place(index.row());
    if (place.line > 0 || place.row >= 0)
        Q_EMIT chosen(place);
}

} // namespace ORVTListview
