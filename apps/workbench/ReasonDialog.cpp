#include "ReasonDialog.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

ReasonDialog::ReasonDialog(const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_form(new QFormLayout)
{
    setWindowTitle(title);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

void ReasonDialog::addEnd(const QString &accepting, int lines)
{
    m_told = new QLabel(this);
    m_told->setTextFormat(Qt::PlainText);
    m_told->setWordWrap(true);
    m_told->setMinimumHeight(lines * fontMetrics().lineSpacing());
    m_told->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_form->addRow(m_told);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_accept = buttons->addButton(accepting, QDialogButtonBox::AcceptRole);
    m_accept->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}

void ReasonDialog::tell(const QString &text, bool canBeAccepted)
{
    m_told->setText(text);
    m_accept->setEnabled(canBeAccepted);
}

} // namespace ORVTListview
