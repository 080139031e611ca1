#include "project/ProjectTexts.h"

namespace ORVTListview {

QString ProjectTexts::about(const QString &subject, const QString &text)
{
    return tr("%1: %2").arg(subject, text);
}

} // namespace ORVTListview
