#pragma once

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtWidgets/QMainWindow>

#include <memory>

class QLabel;

namespace ORVTListview {

class Project;

// A small host: shows a project in the library's components.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    // Shows the project and returns true, or tells the user what is wrong with the
    // file and keeps what is shown.
    bool openProject(const QString &fileName);

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildMenus();
    void chooseProject();
    void showProgram();
    void applyAppearance();

    std::unique_ptr<Project> m_project;
    ORVTreeview *m_vocabulary;
    ORVListView *m_code;
    QLabel *m_programInfo;
};

} // namespace ORVTListview
