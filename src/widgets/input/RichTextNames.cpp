#include "widgets/input/RichTextNames.h"

namespace ORVTListview {

const QStringList &richTextNames()
{
    static const QStringList names{QStringLiteral("text/rtf"), QStringLiteral("application/rtf")};
    return names;
}

} // namespace ORVTListview
