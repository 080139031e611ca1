#pragma once

#include <QtWidgets/QFrame>

class QLabel;
class QSpinBox;

namespace ORVTListview {

class CaretCommands;
class RichTextBox;

// A field at the bottom of an editor, over its text, that asks for a line. Enter goes
// there, Esc and whatever else takes the focus closes it; then the editor has the focus.
class GoToLineBar final : public QFrame
{
    Q_OBJECT

public:
    GoToLineBar(RichTextBox &box, const CaretCommands &commands);

    // With the caret's line, selected. Nothing while the caret may not be moved.
    void ask();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showTexts();
    void watchBox(const QObject &watched, const QEvent &event);
    void place();
    void close(bool goes);

    RichTextBox &m_box;
    const CaretCommands &m_commands;
    QLabel *m_label;
    QSpinBox *m_line;
};

} // namespace ORVTListview
