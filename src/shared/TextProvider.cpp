#include "shared/TextProvider.h"

#include "platform/TextRules.h"
#include "shared/TextTable.h"
#include "shared/ThreadState.h"

namespace ORVTListview {

QString textKey(const QString &English)
{
    return trimmedBlanks(English).toString().toUpper();
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
