#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Types.h>

#include <QtCore/QString>

namespace ORVTListview {

// The nine colours of an appearance as a text of one line, each under the name of its field:
// "BackColor:#ffffff;VariableColor:#0060d0;...". None of them is a system colour.
ORVT_HOUSE_EXPORT QString programColoursText(const RichTextSettings &settings);

// Puts the colours of such a text into an appearance whose font stays. False, and nothing is
// put, for a text that does not name each of them.
ORVT_HOUSE_EXPORT bool takeProgramColours(RichTextSettings &settings, const QString &text);

} // namespace ORVTListview
