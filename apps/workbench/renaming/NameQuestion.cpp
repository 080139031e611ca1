#include "workbench/renaming/NameQuestion.h"

#include <QtCore/QPointer>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLineEdit>

namespace ORVTListview {

QString askName(QWidget &window, const NameQuestion &question)
{
    const QPointer<QWidget> shown(&window);
    QString name = question.name;
    QString reason;
    do {
        const QString asked =
            reason.isEmpty() ? question.text : reason + QStringLiteral("\n\n") + question.text;
        bool isGiven = false;
        name = QInputDialog::getText(&window, question.title, asked, QLineEdit::Normal, name,
                                     &isGiven);
        if (!isGiven || !shown)
            return {};
        reason = question.fault(name);
    } while (!reason.isEmpty());
    return name;
}

} // namespace ORVTListview
