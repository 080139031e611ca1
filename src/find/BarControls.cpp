#include "find/BarControls.h"

#include "find/HistoryField.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

namespace ORVTListview {

QComboBox *BarControls::addField(const QString &name, QBoxLayout &row)
{
    auto *field = new QComboBox;
    field->setObjectName(name);
    HistoryField::make(*field);
    field->setMinimumContentsLength(6); // editors may be narrow
    row.addWidget(field, 1);
    return field;
}

QToolButton *BarControls::addButton(const QString &name, const QString &text, QBoxLayout &row)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    row.addWidget(button);
    return button;
}

void BarControls::nameButton(QToolButton &button, const QString &name, const QString &toolTip)
{
    button.setAccessibleName(name);
    button.setToolTip(toolTip.isEmpty() ? name : toolTip);
}

void BarControls::nameField(QComboBox &field, const QString &name)
{
    field.setAccessibleName(name);
    field.lineEdit()->setPlaceholderText(name);
}

} // namespace ORVTListview
