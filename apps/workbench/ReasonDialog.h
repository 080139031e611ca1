#pragma once

#include <QtWidgets/QDialog>

class QFormLayout;
class QLabel;
class QPushButton;

namespace ORVTListview {

// A dialog of a few fields that tells below them, while they are filled in, what will come of it,
// or why it cannot be accepted yet.
class ReasonDialog : public QDialog
{
    Q_OBJECT

protected:
    ReasonDialog(const QString &title, QWidget *parent);

    // Where the fields go.
    QFormLayout &form() const { return *m_form; }

    // Below the fields: the text, which has room for so many lines, and the buttons.
    void addEnd(const QString &accepting, int lines);

    // Letter for letter.
    void tell(const QString &text, bool canBeAccepted);

private:
    QFormLayout *m_form;
    QLabel *m_told = nullptr;
    QPushButton *m_accept = nullptr;
};

} // namespace ORVTListview
