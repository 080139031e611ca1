#include "TwipsDelegate.h"

#include <QtWidgets/QSpinBox>

// The editor's value is what the delegate gives and takes by itself.
QWidget *TwipsDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                     const QModelIndex &) const
{
    constexpr int narrowest = 60;
    constexpr int widest = 30'000; // about twenty inches
    constexpr int pixel = 15;
    auto *field = new QSpinBox(parent);
    field->setFrame(false);
    field->setRange(narrowest, widest);
    field->setSingleStep(pixel);
    return field;
}
