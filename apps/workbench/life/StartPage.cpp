#include "workbench/life/StartPage.h"

#include "workbench/life/RecentMenu.h"
#include "workbench/life/RecentProjects.h"

#include <QtCore/QDir>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

StartPage::StartPage(RecentProjects &recent, QWidget *parent)
    : QWidget(parent)
    , m_recent(recent)
    , m_title(new QLabel(this))
    , m_new(new QPushButton(this))
    , m_open(new QPushButton(this))
    , m_heading(new QLabel(this))
    , m_files(new QListWidget(this))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    m_title->setFont(large);
    m_heading->setBuddy(m_files);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_new);
    buttons->addWidget(m_open);
    buttons->addStretch();
    m_files->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_files->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    m_files->setMaximumWidth(fontMetrics().averageCharWidth() * 100);
    auto *layout = new QVBoxLayout(this);
    const int margin = 2 * fontMetrics().height();
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addStretch(1);
    layout->addWidget(m_title);
    layout->addLayout(buttons);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(m_heading);
    layout->addWidget(m_files);
    layout->addStretch(2);
    connect(m_new, &QPushButton::clicked, this, &StartPage::newWanted);
    connect(m_open, &QPushButton::clicked, this, &StartPage::choiceWanted);
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
    m_title->setText(tr("No project is open"));
    m_new->setText(tr("&New Project…"));
    m_open->setText(tr("&Open Project…"));
    m_heading->setText(tr("Projects that were opened &last:"));
    m_files->setAccessibleName(m_heading->text().remove(u'&'));
}

void StartPage::showEvent(QShowEvent *event)
{
    fill();
    m_open->setFocus();
    QWidget::showEvent(event);
}

void StartPage::fill()
{
    m_files->clear();
    const QStringList files = m_recent.files();
    for (const QString &file : files) {
        auto *item = new QListWidgetItem(shownPlace(file), m_files);
        item->setData(Qt::UserRole, file);
        item->setToolTip(QDir::toNativeSeparators(file));
    }
    if (m_files->count() > 0)
        m_files->setCurrentRow(0);
    for (QWidget *widget : {static_cast<QWidget *>(m_heading), static_cast<QWidget *>(m_files)})
        widget->setVisible(!files.isEmpty());
}

} // namespace ORVTListview
