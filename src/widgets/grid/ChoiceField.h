#pragma once

#include <QtWidgets/QComboBox>

namespace ORVTListview {

// A field with a list to choose from, whose text is free: see NumberField.
class ChoiceField final : public QComboBox
{
    Q_OBJECT

public:
    ChoiceField(const QStringList &choices, QWidget *parent);
};

} // namespace ORVTListview
