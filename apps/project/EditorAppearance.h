#pragma once

#include "project/JsonPlace.h"

#include <ORVTListview/Types.h>

#include <optional>

namespace ORVTListview {

// "#rrggbb", or "system:" and the name of a system colour, which is a negative
// value; none for any other text.
std::optional<qint32> colourFromText(const QString &text);

// What a project says about its editor; what it leaves out has the colours of
// the default colour table.
RichTextSettings readAppearance(const JsonPlace &editor);

} // namespace ORVTListview
