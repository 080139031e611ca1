#include "PlainTexts.h"

#include "FreeKeys.h"
#include "FrontWindow.h"
#include "TitleWidth.h"

#include <QtCore/QPointer>
#include <QtGui/QTextDocument>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpacerItem>

namespace ORVTListview {

void PlainTexts::warn(QWidget &window, const QString &title, const QString &text)
{
    ask(window, {title, text, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Warning});
}

QMessageBox::StandardButton PlainTexts::ask(QWidget &window, const Question &question)
{
    const QPointer<QMessageBox> box(new QMessageBox(question.icon, question.title, question.text,
                                                    question.answers, &frontWindow(window)));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(question.usual);
    giveFreeKeys(box->buttons());
    if (auto *parts = qobject_cast<QGridLayout *>(box->layout())) // it takes no minimum width
        parts->addItem(new QSpacerItem(titleWidth(*box), 0), parts->rowCount(), 0, 1,
                       parts->columnCount());
    const int answer = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return static_cast<QMessageBox::StandardButton>(answer);
}

std::optional<QString> PlainTexts::askText(QWidget &window, const QString &title,
                                           const QString &question, const QString &text)
{
    const QPointer<QInputDialog> dialog(new QInputDialog(&frontWindow(window)));
    dialog->setWindowTitle(title);
    dialog->setLabelText(QString(question).replace(u'&', QStringLiteral("&&")));
    dialog->setTextValue(text);
    dialog->findChild<QLineEdit *>()->setMinimumWidth(titleWidth(*dialog));
    for (QLabel *label : dialog->findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    const bool isGiven = dialog->exec() == QDialog::Accepted;
    std::optional<QString> given;
    if (dialog && isGiven)
        given = dialog->textValue();
    delete dialog;
    return given;
}

QString PlainTexts::toolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace ORVTListview
