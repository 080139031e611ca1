#include <ORVTListview/TextProvider.h>

#include "base/TextRules.h"

namespace ORVTListview {

QString textKey(const QString &English)
{
    return trimmedSpaces(English).toString().toUpper();
}

TextProvider::~TextProvider() = default;

DisplayFontSettings TextProvider::DisplayFont()
{
    return {};
}

} // namespace ORVTListview
