#include "find/HistoryField.h"

#include "find/rules/SearchHistory.h"
#include "widgets/input/FieldMenu.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace ORVTListview {

void HistoryField::make(QComboBox &field)
{
    field.setEditable(true);
    FieldMenu::installOn(*field.lineEdit());
    field.setInsertPolicy(QComboBox::NoInsert);
    field.setCompleter(nullptr);
    field.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    field.setMinimumContentsLength(16);
    field.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void HistoryField::show(QComboBox &field, const QString &text)
{
    field.setCurrentIndex(-1);
    field.setEditText(text);
}

void HistoryField::list(QComboBox &field, const SearchHistory &history)
{
    field.clear();
    field.addItems(history.texts());
}

void HistoryField::remember(QComboBox &field, SearchHistory &history)
{
    const QString text = field.currentText();
    if (!history.add(text))
        return;
    field.addItem(text);
    field.setCurrentIndex(field.count() - 1);
}

} // namespace ORVTListview
