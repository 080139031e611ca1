#pragma once

#include <QtGui/QKeySequence>

namespace ORVTListview {

// A key in a sentence, as the menus write it.
inline QString keyText(const QKeySequence &keys)
{
    return keys.toString(QKeySequence::NativeText);
}

} // namespace ORVTListview
