#include "workbench/renaming/NewPointDialog.h"

#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "workbench/FrontWindow.h"

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

namespace ORVTListview {

NewPointDialog::NewPointDialog(const ProjectDocument &document, const PointProposal &proposal,
                               QWidget *parent)
    : ReasonDialog(proposal.title, parent)
    , m_document(document)
    , m_table(new QComboBox(this))
    , m_name(new QLineEdit(proposal.name, this))
{
    addFields(proposal);
    addEnd(tr("&Add"), 2);
    connect(m_name, &QLineEdit::textChanged, this, &NewPointDialog::showFault);
    connect(m_table, &QComboBox::currentIndexChanged, this, &NewPointDialog::showFault);
    showFault();
    m_name->setFocus();
}

std::optional<NewPoint> NewPointDialog::ask(const ProjectDocument &document,
                                            const PointProposal &proposal, QWidget &window)
{
    const QPointer<NewPointDialog> dialog(
        new NewPointDialog(document, proposal, &frontWindow(window)));
    const bool isWanted = dialog->exec() == QDialog::Accepted;
    std::optional<NewPoint> point;
    if (dialog && isWanted)
        point = {dialog->type(), dialog->name()};
    delete dialog;
    return point;
}

void NewPointDialog::addFields(const PointProposal &proposal)
{
    const LwType type = proposal.type;
    for (const LwType each : projectTypes()) {
        if (nameColumn(each) >= 0 && (type != dsCode || isVocabularyType(each)))
            m_table->addItem(Localise(displayName(each)), QVariant::fromValue<int>(each));
    }
    m_table->setCurrentIndex(m_table->findData(type == dsCode ? dsVariable : type));
    m_table->setEnabled(proposal.isTableFree);
    form().addRow(tr("&Name:"), m_name);
    form().addRow(tr("&Table:"), m_table);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
}

LwType NewPointDialog::type() const
{
    return static_cast<LwType>(m_table->currentData().toInt());
}

QString NewPointDialog::name() const
{
    return m_name->text().trimmed();
}

// No sentence before anything was typed.
void NewPointDialog::showFault()
{
    const Project *project = m_document.project();
    QString fault;
    if (project && !name().isEmpty())
        fault = project->nameFault(type(), project->rows(type()).size(), name());
    tell(fault, project && !name().isEmpty() && fault.isEmpty());
}

} // namespace ORVTListview
