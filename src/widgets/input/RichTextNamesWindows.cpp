#include "widgets/input/RichTextNames.h"

namespace ORVTListview {

// The first is how the toolkit spells a name of the system's own, "Rich Text Format"; the
// second is what its other programs look for.
const QStringList &richTextNames()
{
    static const QStringList names{
        QStringLiteral("application/x-qt-windows-mime;value=\"Rich Text Format\""),
        QStringLiteral("text/rtf")};
    return names;
}

} // namespace ORVTListview
