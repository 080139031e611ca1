#include "widgets/grid/NumberField.h"

#include "grid/rules/CellRules.h"
#include "widgets/input/FieldMenu.h"

#include <QtWidgets/QLineEdit>

namespace ORVTListview {

NumberField::NumberField(const CellRule &rule, QWidget *parent)
    : QAbstractSpinBox(parent)
    , m_rule(rule)
{
    FieldMenu::installOn(*lineEdit());
}

QString NumberField::entered() const
{
    return lineEdit()->text();
}

void NumberField::setEntered(const QString &text)
{
    lineEdit()->setText(text);
}

void NumberField::stepBy(int steps)
{
    lineEdit()->setText(steppedNumber(m_rule, entered(), steps, locale()));
    lineEdit()->setModified(true);
    lineEdit()->selectAll();
    Q_EMIT lineEdit()->textEdited(entered());
}

QAbstractSpinBox::StepEnabled NumberField::stepEnabled() const
{
    return StepUpEnabled | StepDownEnabled;
}

} // namespace ORVTListview
