#include "CheckResults.h"

#include "CheckModel.h"

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
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setFrameShape(QFrame::NoFrame);
    setWidget(m_view);
    connect(m_view, &QTreeView::clicked, this, &CheckResults::choose);
    connect(m_view, &QTreeView::activated, this, &CheckResults::choose);
    retranslate();
}

void CheckResults::showProblems(const ProgramAnalysis &analysis)
{
    m_model->setProblems(analysis.problems(), analysis.problemCount());
    showModel();
}

void CheckResults::showStatements(const QList<ListedStatement> &statements)
{
    m_model->setStatements(statements);
    showModel();
}

void CheckResults::showUses(const QList<ShownUse> &uses)
{
    m_model->setUses(uses);
    showModel();
}

void CheckResults::followProblems(const ProgramAnalysis &analysis)
{
    if (isHidden() || m_model->content() != CheckModel::Content::Problems)
        return;
    const int row = m_view->currentIndex().row();
    const int scrolled = m_view->verticalScrollBar()->value();
    m_model->setProblems(analysis.problems(), analysis.problemCount());
    if (row >= 0 && !m_view->currentIndex().isValid())
        m_view->setCurrentIndex(m_model->index(std::min(row, m_model->rowCount() - 1), 0));
    m_view->verticalScrollBar()->setValue(scrolled);
    fitColumns();
}

void CheckResults::moveLines(qint32 behind, qint32 by)
{
    if (!isHidden() && by != 0)
        m_model->moveLines(behind, by);
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
