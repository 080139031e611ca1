#pragma once

#include <QtWidgets/QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace ORVTListview {

// Asks for name and place of a new project, and makes it.
class NewProjectDialog : public QDialog
{
    Q_OBJECT

public:
    NewProjectDialog(const QString &folder, QWidget *parent);

    // The file that was made; empty before.
    QString created() const { return m_created; }

    void accept() override;

private:
    void addFields();
    void addButtons();
    void chooseFolder();
    void showPlace();
    QString place() const;

    QLineEdit *m_name;
    QLineEdit *m_folder;
    QLabel *m_place;
    QPushButton *m_create = nullptr;
    QString m_created;
};

} // namespace ORVTListview
