#pragma once

class QBoxLayout;
class QComboBox;
class QString;
class QToolButton;

namespace ORVTListview {

// The controls that the rows of a find bar are made of.
namespace BarControls {

constexpr int spacing = 3; // pixels, between them

// At the row's end, and the row's parent's.
QComboBox *addField(const QString &name, QBoxLayout &row);
QToolButton *addButton(const QString &name, const QString &text, QBoxLayout &row);

// For screen readers, and as tool tip where there is no other one.
void nameButton(QToolButton &button, const QString &name, const QString &toolTip);
void nameField(QComboBox &field, const QString &name);

} // namespace BarControls
} // namespace ORVTListview
