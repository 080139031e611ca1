#include "widgets/input/RichTextNames.h"

namespace ORVTListview {

// The first is the system's own, and no MIME type; the second is what other programs of the
// toolkit look for.
const QStringList &richTextNames()
{
    static const QStringList names{QStringLiteral("Rich Text Format"), QStringLiteral("text/rtf")};
    return names;
}

} // namespace ORVTListview
