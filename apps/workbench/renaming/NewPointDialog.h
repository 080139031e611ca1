#pragma once

#include "workbench/ReasonDialog.h"

#include <ORVTListview/Types.h>

#include <QtCore/QString>

#include <optional>

class QComboBox;
class QLineEdit;

namespace ORVTListview {

class ProjectDocument;

struct PointProposal
{
    QString title;
    LwType type = dsCode; // which leaves the table to the user
    QString name;         // to begin with
    bool isTableFree = true;
};

struct NewPoint
{
    LwType type;
    QString name;
};

// Asks for the table and the name of a new point, and says at once why one cannot be.
class NewPointDialog : public ReasonDialog
{
    Q_OBJECT

public:
    // The document must outlive it.
    NewPointDialog(const ProjectDocument &document, const PointProposal &proposal, QWidget *parent);

    // Shows one. None when the user gives up, or the window goes.
    static std::optional<NewPoint> ask(const ProjectDocument &document,
                                       const PointProposal &proposal, QWidget &window);

    LwType type() const;
    QString name() const;

private:
    void addFields(const PointProposal &proposal);
    void showFault();

    const ProjectDocument &m_document;
    QComboBox *m_table;
    QLineEdit *m_name;
};

} // namespace ORVTListview
