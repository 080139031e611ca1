#include <ORVTListview/TextProvider.h>

#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "shared/texts/TextTable.h"

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

void setTextProvider(TextProvider *Provider)
{
    TextTable &table = threadPart<TextTable>();
    table.setProvider(Provider);
    table.refresh();
}

} // namespace ORVTListview
