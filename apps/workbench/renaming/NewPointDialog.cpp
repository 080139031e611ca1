#include "workbench/renaming/NewPointDialog.h"

#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

NewPointDialog::NewPointDialog(const ProjectDocument &document, const PointProposal &proposal,
                               QWidget *parent)
    : QDialog(parent)
    , m_document(document)
    , m_table(new QComboBox(this))
    , m_name(new QLineEdit(proposal.name, this))
    , m_fault(new QLabel(this))
{
    setWindowTitle(proposal.title);
    auto *layout = new QVBoxLayout(this);
    addFields(proposal);
    addButtons();
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    connect(m_name, &QLineEdit::textChanged, this, &NewPointDialog::showFault);
    connect(m_table, &QComboBox::currentIndexChanged, this, &NewPointDialog::showFault);
    showFault();
    m_name->setFocus();
}

std::optional<NewPoint> NewPointDialog::ask(const ProjectDocument &document,
                                            const PointProposal &proposal, QWidget &window)
{
    const QPointer<NewPointDialog> dialog(new NewPointDialog(document, proposal, &window));
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
    auto *form = new QFormLayout;
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&Table:"), m_table);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    m_name->selectAll();
    m_fault->setTextFormat(Qt::PlainText);
    m_fault->setWordWrap(true);
    m_fault->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_fault->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->addRow(m_fault);
    static_cast<QVBoxLayout *>(layout())->addLayout(form);
}

void NewPointDialog::addButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_add = buttons->addButton(tr("&Add"), QDialogButtonBox::AcceptRole);
    m_add->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewPointDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NewPointDialog::reject);
    layout()->addWidget(buttons);
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
    m_add->setEnabled(project && !name().isEmpty() && fault.isEmpty());
    m_fault->setText(fault);
}

} // namespace ORVTListview
