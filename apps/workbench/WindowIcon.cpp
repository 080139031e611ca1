#include "WindowIcon.h"

using namespace Qt::StringLiterals;

namespace ORVTListview {

// Pictures of points: no reader of SVG is needed.
QIcon windowIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addFile(u":/workbench/icon/%1.png"_s.arg(size), QSize(size, size));
    return icon;
}

} // namespace ORVTListview
