#pragma once

#include "workbench/ActionPage.h"

class QListWidget;

namespace ORVTListview {

class RecentProjects;

// While no project is open: what can be done.
class StartPage : public ActionPage
{
    Q_OBJECT

public:
    // The list outlives the page.
    StartPage(RecentProjects &recent, QWidget *parent);

    void retranslate() override;

Q_SIGNALS:
    void newWanted();
    void choiceWanted();
    void projectWanted(const QString &fileName);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fill();

    RecentProjects &m_recent;
    QPushButton *m_new;
    QPushButton *m_open;
    QLabel *m_heading;
    QListWidget *m_files;
};

} // namespace ORVTListview
