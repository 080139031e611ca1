#pragma once

#include <ORVTListview/CellRule.h>

#include <QtWidgets/QAbstractSpinBox>

namespace ORVTListview {

// A field with arrows whose text is free: whether it is a number is told when it is
// entered, so that what was typed stays to be corrected.
class NumberField final : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(QString entered READ entered WRITE setEntered USER true)

public:
    NumberField(const CellRule &rule, QWidget *parent);

    QString entered() const;
    void setEntered(const QString &text);

    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;

private:
    const CellRule m_rule;
};

} // namespace ORVTListview
