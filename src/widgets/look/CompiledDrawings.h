#pragma once

#include "widgets/look/PathDrawing.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <memory>

namespace ORVTListview {

// The library's own drawings. To an ImageList each is a file that only we know.
struct CompiledDrawings
{
    // What stands for the file of that drawing, by its name without the ending.
    static QString fileOf(const QString &name);

    // Null for a file that is none of ours.
    static std::shared_ptr<const Drawing> of(const QString &file);

    // By their names; made from the SVG files when the library is built.
    static QHash<QString, std::shared_ptr<const Drawing>> all();
};

} // namespace ORVTListview
