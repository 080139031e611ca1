#include "workbench/life/StartPage.h"

#include "workbench/PlainTexts.h"
#include "workbench/RoomyRows.h"
#include "workbench/life/RecentMenu.h"
#include "workbench/life/RecentProjects.h"

#include <QtCore/QDir>
#include <QtGui/QShowEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace ORVTListview {

StartPage::StartPage(RecentProjects &recent, QWidget *parent)
    : ActionPage(parent)
    , m_recent(recent)
    , m_new(addButton())
    , m_open(addButton())
    , m_heading(new QLabel(this))
    , m_files(new QListWidget(this))
{
    prefer(*m_open);
    m_heading->setBuddy(m_files);
    m_heading->setContentsMargins(0, fontMetrics().height(), 0, 0);
    m_files->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_files->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    addBelow(*m_heading);
    addBelow(*m_files);
    connect(m_new, &QPushButton::clicked, this, &StartPage::newWanted);
    connect(m_open, &QPushButton::clicked, this, &StartPage::choiceWanted);
    m_files->setItemDelegate(new RoomyRows(m_files));
    // Queued: the list that was chosen in is filled anew.
    connect(
        m_files, &QListWidget::itemActivated, this,
        [this](const QListWidgetItem *item) {
            Q_EMIT projectWanted(item->data(Qt::UserRole).toString());
        },
        Qt::QueuedConnection);
    connect(&recent, &RecentProjects::changed, this, &StartPage::fill);
    retranslate();
}

void StartPage::retranslate()
{
    setTitle(tr("No project is open"));
    m_new->setText(tr("&New Project…"));
    m_open->setText(tr("&Open Project…"));
    m_heading->setText(tr("Projects that were opened &last:"));
    m_files->setAccessibleName(m_heading->text().remove(u'&'));
}

void StartPage::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        fill();
    ActionPage::showEvent(event);
}

void StartPage::fill()
{
    const QStringList files = m_recent.files();
    const QListWidgetItem *chosen = m_files->currentItem();
    const QString file = chosen ? chosen->data(Qt::UserRole).toString() : QString();
    m_files->clear();
    for (const QString &each : files) {
        auto *item = new QListWidgetItem(shownPlace(each), m_files);
        item->setData(Qt::UserRole, each);
        item->setToolTip(PlainTexts::toolTip(QDir::toNativeSeparators(each)));
    }
    if (m_files->count() > 0)
        m_files->setCurrentRow(std::max(0, static_cast<int>(files.indexOf(file))));
    for (QWidget *widget : {static_cast<QWidget *>(m_heading), static_cast<QWidget *>(m_files)})
        widget->setVisible(!files.isEmpty());
}

} // namespace ORVTListview
