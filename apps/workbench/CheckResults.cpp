#include "CheckResults.h"

#include "CheckModel.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CheckResults::CheckResults(const ImageList &pictures, QWidget *parent)
    : QDockWidget(parent)
    , m_model(new CheckModel(pictures, this))
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

void CheckResults::showFindings(const QList<ProgramFinding> &findings)
{
    m_model->setFindings(findings);
    showModel();
}

void CheckResults::showWords(const QList<ProgramWord> &words)
{
    m_model->setWords(words);
    showModel();
}

void CheckResults::retranslate()
{
    setWindowTitle(tr("Results"));
    m_model->retranslate();
    fitColumns();
}

void CheckResults::showModel()
{
    m_view->setHeaderHidden(!m_model->isListOfWords());
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
    const CheckModel::Place place = m_model->place(index.row());
    if (place.line > 0)
        Q_EMIT chosen(place.word, place.line);
}

} // namespace ORVTListview
