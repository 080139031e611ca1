#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QString>
#include <QtWidgets/QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace ORVTListview {

class ProjectDocument;

// Asks for the table and the name of a new point, and says at once why one cannot be.
class NewPointDialog : public QDialog
{
    Q_OBJECT

public:
    // The document must outlive it; dsCode leaves the table to the user.
    NewPointDialog(const ProjectDocument &document, LwType type, const QString &name,
                   QWidget *parent);

    LwType type() const;
    QString name() const;

private:
    void addFields(LwType type);
    void addButtons();
    void showFault();

    const ProjectDocument &m_document;
    QComboBox *m_table;
    QLineEdit *m_name;
    QLabel *m_fault;
    QPushButton *m_add = nullptr;
};

} // namespace ORVTListview
