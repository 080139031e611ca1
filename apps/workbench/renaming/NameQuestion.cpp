#include "workbench/renaming/NameQuestion.h"

#include "workbench/PlainTexts.h"

#include <optional>

namespace ORVTListview {

// A name to begin with that cannot be has its reason at once.
QString askName(QWidget &window, const NameQuestion &question)
{
    std::optional<QString> name = question.name;
    QString reason = question.name.isEmpty() ? QString() : question.fault(question.name);
    do {
        const QString asked =
            reason.isEmpty() ? question.text : reason + QStringLiteral("\n\n") + question.text;
        name = PlainTexts::askText(window, question.title, asked, *name);
        if (!name)
            return {};
        reason = question.fault(*name);
    } while (!reason.isEmpty());
    return *name;
}

} // namespace ORVTListview
