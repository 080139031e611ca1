#include <ORVTListview/RichTextBox.h>

#include "members/HandedClass.h"
#include "members/MemberEntries.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Box = RichTextBox;

QList<Member> textMembers()
{
    return {
        readWrite<&Box::Text, &Box::setText>(u"Text"),
        readWrite<&Box::TextRTF, &Box::setTextRTF>(u"TextRTF"),
        readWrite<&Box::SelStart, &Box::setSelStart>(u"SelStart"),
        readWrite<&Box::SelLength, &Box::setSelLength>(u"SelLength"),
        readWrite<&Box::SelText, &Box::setSelText>(u"SelText"),
        readWrite<&Box::SelRTF, &Box::setSelRTF>(u"SelRTF"),
        readWrite<&Box::SelColor, &Box::setSelColor>(u"SelColor"),
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
    return {
        readWrite<&Box::BackColor, &Box::setBackColor>(u"BackColor"),
        readWrite<&Box::FontName, &Box::setFontName>(u"FontName"),
        readWrite<&Box::FontSize, &Box::setFontSize>(u"FontSize"),
        readWrite<&Box::FontBold, &Box::setFontBold>(u"FontBold"),
        readWrite<&Box::FontItalic, &Box::setFontItalic>(u"FontItalic"),
        readWrite<&Box::FontUnderline, &Box::setFontUnderline>(u"FontUnderline"),
        readWrite<&Box::FontStrikethrough, &Box::setFontStrikethrough>(u"FontStrikethrough"),
    };
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
                         &together<textMembers, lookMembers, events>, &facts);

} // namespace

} // namespace ORVTListview
