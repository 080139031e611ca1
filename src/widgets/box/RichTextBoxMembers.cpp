#include <ORVTListview/RichTextBox.h>

#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "members/MemberEntries.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Box = RichTextBox;

QList<Member> textMembers()
{
    return properties<Box, "Text", "TextRTF", "SelStart", "SelLength", "SelText", "SelRTF",
                      "SelColor">();
}

QList<Member> placeMembers()
{
    return {
        method<&Box::GetLineFromChar>(u"GetLineFromChar", u"Position"),
        method<&Box::Find>(u"Find", u"Text", optional(u"Start"), optional(u"End", -1),
                           optional(u"Options")),
        method<&Box::TextLength>(u"TextLength"),
        readOnly<&Box::lineCount>(u"lineCount"),
        method<&Box::lineStart>(u"lineStart", u"line"),
        method<&Box::lineText>(u"lineText", u"line"),
        method<&Box::textRange>(u"textRange", u"start", u"length"),
        readOnly<&Box::isComposing>(u"isComposing"),
    };
}

QList<Member> lookMembers()
{
    return properties<Box, "BackColor", "FontName", "FontSize", "FontBold", "FontItalic",
                      "FontUnderline", "FontStrikethrough">();
}

QList<Member> events()
{
    return {
        raises<&Box::Change>(1, u"Change"),
        raises<&Box::KeyDown>(2, u"KeyDown", u"KeyCode", u"Shift"),
        raises<&Box::MouseDown>(3, u"MouseDown", u"Button", u"Shift", u"X", u"Y"),
    };
}

QList<MemberFacts> facts()
{
    const QString places = u"0 to TextLength(); the nearest place counts"_s;
    const QString lines = u"0 to lineCount() less 1; the nearest line counts"_s;
    return {
        {.name = u"SelStart"_s, .unit = u"UTF-16 units"_s, .range = places},
        {.name = u"SelLength"_s, .unit = u"UTF-16 units"_s, .range = places},
        {.name = u"SelColor"_s, .unit = u"colour"_s},
        {.name = u"GetLineFromChar"_s, .range = places},
        {.name = u"Find"_s, .range = u"Start, End: as places; End -1 for the end"_s},
        {.name = u"TextLength"_s, .unit = u"UTF-16 units"_s},
        {.name = u"lineCount"_s, .unit = u"lines"_s},
        {.name = u"lineStart"_s, .range = lines},
        {.name = u"lineText"_s, .range = lines},
        {.name = u"textRange"_s, .unit = u"UTF-16 units"_s, .range = places},
        {.name = u"BackColor"_s, .unit = u"colour"_s},
        {.name = u"FontSize"_s, .unit = u"point"_s, .range = u"above 0"_s},
        {.name = u"MouseDown"_s, .unit = u"X, Y: twip"_s},
    };
}

const HandedClass handed(QMetaType::fromType<RichTextBox *>(),
                         &together<textMembers, placeMembers, lookMembers, events>, &facts);

} // namespace

} // namespace ORVTListview
