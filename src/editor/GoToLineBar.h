#pragma once

#include "editor/view/EditorBar.h"

class QLabel;
class QSpinBox;

namespace ORVTListview {

class CaretCommands;
class RichTextBox;

// Asks for a line of an editor. Enter goes there, Esc and whatever else takes the focus
// closes it.
class GoToLineBar final : public EditorBar
{
    Q_OBJECT

public:
    GoToLineBar(RichTextBox &box, const CaretCommands &commands);

    // With the caret's line, selected. Nothing while the caret may not be moved.
    void ask();

protected:
    void showTexts() override;
    bool isOwnKey(const QKeyEvent &key) const override;
    void act(const QKeyEvent &key) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    RichTextBox &m_box;
    const CaretCommands &m_commands;
    QLabel *m_label;
    QSpinBox *m_line;
};

} // namespace ORVTListview
