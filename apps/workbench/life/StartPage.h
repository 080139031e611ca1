#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace ORVTListview {

class RecentProjects;

// What stands in the window while no project is open: what can be done.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    // The list outlives the page.
    StartPage(RecentProjects &recent, QWidget *parent);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void newWanted();
    void choiceWanted();
    void projectWanted(const QString &fileName);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fill();

    RecentProjects &m_recent;
    QLabel *m_title;
    QPushButton *m_new;
    QPushButton *m_open;
    QLabel *m_heading;
    QListWidget *m_files;
};

} // namespace ORVTListview
