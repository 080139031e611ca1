#pragma once

#include <QtCore/QString>
#include <QtWidgets/QMessageBox>

#include <optional>

namespace ORVTListview {

// Texts that hold names which users have given, shown letter for letter: the toolkit takes
// "<b>" for markup else, and "&" for an access key.
namespace PlainTexts {

// Messages stand in front of the window, which may be gone when they return.
void warn(QWidget &window, const QString &title, const QString &text);

struct Question
{
    QString title;
    QString text;
    QMessageBox::StandardButtons answers = QMessageBox::Yes | QMessageBox::No;
    QMessageBox::StandardButton usual = QMessageBox::NoButton; // by Enter; the first for none
    QMessageBox::Icon icon = QMessageBox::Question;
};

// NoButton where the window is gone.
QMessageBox::StandardButton ask(QWidget &window, const Question &question);

// A text to begin with becomes another one; none where the user gives up.
std::optional<QString> askText(QWidget &window, const QString &title, const QString &question,
                               const QString &text);

// For setToolTip().
QString toolTip(const QString &text);

} // namespace PlainTexts
} // namespace ORVTListview
