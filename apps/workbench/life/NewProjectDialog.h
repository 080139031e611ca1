#pragma once

#include "workbench/ReasonDialog.h"

class QLineEdit;

namespace ORVTListview {

// Asks for name and place of a new project, and makes it.
class NewProjectDialog : public ReasonDialog
{
    Q_OBJECT

public:
    NewProjectDialog(const QString &folder, QWidget *parent);

    // The file that was made; empty before.
    QString created() const { return m_created; }

    void accept() override;

private:
    void addFields();
    void chooseFolder();
    void showPlace();
    QString place() const;

    QLineEdit *m_name;
    QLineEdit *m_folder;
    QString m_created;
};

} // namespace ORVTListview
