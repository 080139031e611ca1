#include "widgets/grid/ChoiceField.h"

#include "widgets/input/FieldMenu.h"

#include <QtWidgets/QLineEdit>

namespace ORVTListview {

ChoiceField::ChoiceField(const QStringList &choices, QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    addItems(choices);
    setMaxVisibleItems(12);
    FieldMenu::installOn(*lineEdit());
    connect(this, &QComboBox::activated, this, [this] {
        lineEdit()->setModified(true);
        Q_EMIT lineEdit()->textEdited(currentText());
    });
}

} // namespace ORVTListview
