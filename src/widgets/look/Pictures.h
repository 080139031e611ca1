#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>

namespace ORVTListview {

class ImageList;

// The pictures of the controller's world: one for each point type under its
// display name, the same with "Down" appended for its pressed read button, the
// status pictures, the tree's device and page, and the word classes. Indexes 61
// to 71 are those of the word classes; the picture of a class of points is that
// of its type.
// Why it is so: docs/decisions/pictures.md.
struct ORVT_EXPORT Pictures
{
    // The pictures are added; a list that has one of their keys or indexes
    // already raises Error (InvalidCall).
    static void fillInto(ImageList &list);

    // The key of a type's read button while it is pressed.
    static QString pressedKey(const QString &displayName);
};

} // namespace ORVTListview
