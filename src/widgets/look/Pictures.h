#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>

namespace ORVTListview {

class ImageList;

// The pictures of the controller's world: one for each point type under its
// display name, the same with "Down" appended for its pressed read button, the
// status pictures, the tree's device and page, and the word classes.
// Why it is so: docs/decisions/pictures.md.
struct Pictures
{
    // The pictures are added; a list that has one of their keys or indexes
    // already raises Error (InvalidCall). Exported for our plugin for Designer alone.
    ORVT_EXPORT static void fillInto(ImageList &list);

    // The key of a type's read button while it is pressed.
    static QString pressedKey(const QString &displayName);
};

} // namespace ORVTListview
