#include "rtf/RtfKeywords.h"

#include <array>

namespace ORVTListview {
namespace {

using enum RtfAction;

constexpr RtfKeyword keywords[] = {
    // Characters with a name
    {"tab", AddCharacter, u'\t'},
    {"cell", AddCharacter, u'\t'},
    {"nestcell", AddCharacter, u'\t'},
    {"emdash", AddCharacter, 0x2014},
    {"endash", AddCharacter, 0x2013},
    {"emspace", AddCharacter, 0x2003},
    {"enspace", AddCharacter, 0x2002},
    {"qmspace", AddCharacter, 0x2005},
    {"bullet", AddCharacter, 0x2022},
    {"lquote", AddCharacter, 0x2018},
    {"rquote", AddCharacter, 0x2019},
    {"ldblquote", AddCharacter, 0x201C},
    {"rdblquote", AddCharacter, 0x201D},
    {"ltrmark", AddCharacter, 0x200E},
    {"rtlmark", AddCharacter, 0x200F},
    {"zwj", AddCharacter, 0x200D},
    {"zwnj", AddCharacter, 0x200C},
    {"zwbo", AddCharacter, 0x200B},
    {"zwnbo", AddCharacter, 0x2060},
    {"u", AddUnicode},
    {"uc", SetFallback},

    // Line ends
    {"par", EndLine},
    {"line", EndLine},
    {"lbr", EndLine},
    {"row", EndLine},
    {"nestrow", EndLine},
    {"sect", EndLine},
    {"page", EndLine},
    {"column", EndLine},

    // The document
    {"ansi", FixCodePage, 1252},
    {"mac", FixCodePage, 10000},
    {"pc", FixCodePage, 437},
    {"pca", FixCodePage, 850},
    {"ansicpg", SetCodePage},
    {"deff", SetDefaultFont},
    {"fonttbl", StartFontTable},
    {"fcharset", SetFontCharset},
    {"cpg", SetFontCodePage},
    {"colortbl", StartColourTable},
    {"red", SetRed},
    {"green", SetGreen},
    {"blue", SetBlue},

    // Character settings
    {"plain", ResetCharacters},
    {"f", SetFont},
    {"fs", SetSize},
    {"cf", SetColour},
    {"cb", SetBackColour},
    {"highlight", SetBackColour},
    {"chcbpat", SetBackColour},
    {"b", SetFlag, RtfBold},
    {"i", SetFlag, RtfItalic},
    {"strike", SetFlag, RtfStrike},
    {"striked", SetFlag, RtfStrike},
    {"v", SetFlag, RtfHidden},
    {"deleted", SetFlag, RtfDeleted},
    {"ul", SetFlag, RtfUnderline},
    {"uld", SetFlag, RtfUnderline},
    {"uldash", SetFlag, RtfUnderline},
    {"uldashd", SetFlag, RtfUnderline},
    {"uldashdd", SetFlag, RtfUnderline},
    {"uldb", SetFlag, RtfUnderline},
    {"ulhair", SetFlag, RtfUnderline},
    {"ulhwave", SetFlag, RtfUnderline},
    {"ulldash", SetFlag, RtfUnderline},
    {"ulth", SetFlag, RtfUnderline},
    {"ulthd", SetFlag, RtfUnderline},
    {"ulthdash", SetFlag, RtfUnderline},
    {"ulthdashd", SetFlag, RtfUnderline},
    {"ulthdashdd", SetFlag, RtfUnderline},
    {"ulthldash", SetFlag, RtfUnderline},
    {"ululdbwave", SetFlag, RtfUnderline},
    {"ulw", SetFlag, RtfUnderline},
    {"ulwave", SetFlag, RtfUnderline},
    {"ulnone", ClearFlag, RtfUnderline},

    // Text in groups of its own. What is stated twice, for readers that know Unicode
    // or the object and for those that do not, is passed over in its first form.
    {"fldrslt", ReadDestination},
    {"nesttableprops", ReadDestination},
    {"object", PassOver},
    {"result", ShowAfterAll},
    {"upr", PassOver},
    {"ud", ShowAfterAll},

    // What is no text of the document. Paragraph numbers are not characters of
    // the text either.
    {"NeXTGraphic", SkipDestination},
    {"annotation", SkipDestination},
    {"atnid", SkipDestination},
    {"bkmkend", SkipDestination},
    {"bkmkstart", SkipDestination},
    {"colorschememapping", SkipDestination},
    {"comment", SkipDestination},
    {"datafield", SkipDestination},
    {"datastore", SkipDestination},
    {"do", SkipDestination},
    {"docvar", SkipDestination},
    {"falt", SkipDestination},
    {"filetbl", SkipDestination},
    {"fldinst", SkipDestination},
    {"fname", SkipDestination},
    {"fontemb", SkipDestination},
    {"fontfile", SkipDestination},
    {"footer", SkipDestination},
    {"footerf", SkipDestination},
    {"footerl", SkipDestination},
    {"footerr", SkipDestination},
    {"footnote", SkipDestination},
    {"ftncn", SkipDestination},
    {"ftnsep", SkipDestination},
    {"ftnsepc", SkipDestination},
    {"aftncn", SkipDestination},
    {"aftnsep", SkipDestination},
    {"aftnsepc", SkipDestination},
    {"generator", SkipDestination},
    {"header", SkipDestination},
    {"headerf", SkipDestination},
    {"headerl", SkipDestination},
    {"headerr", SkipDestination},
    {"info", SkipDestination},
    {"latentstyles", SkipDestination},
    {"listoverridetable", SkipDestination},
    {"listpicture", SkipDestination},
    {"listtable", SkipDestination},
    {"listtext", SkipDestination},
    {"nextfile", SkipDestination},
    {"nonesttables", SkipDestination},
    {"nonshppict", SkipDestination},
    {"objdata", SkipDestination},
    {"panose", SkipDestination},
    {"pgptbl", SkipDestination},
    {"pict", SkipDestination},
    {"pn", SkipDestination},
    {"pnseclvl", SkipDestination},
    {"pntext", SkipDestination},
    {"pntxta", SkipDestination},
    {"pntxtb", SkipDestination},
    {"private", SkipDestination},
    {"revtbl", SkipDestination},
    {"rsidtbl", SkipDestination},
    {"shpinst", SkipDestination},
    {"shppict", SkipDestination},
    {"shprslt", SkipDestination},
    {"stylesheet", SkipDestination},
    {"tc", SkipDestination},
    {"tcn", SkipDestination},
    {"template", SkipDestination},
    {"themedata", SkipDestination},
    {"userprops", SkipDestination},
    {"xe", SkipDestination},
    {"xmlnstbl", SkipDestination},
};

// Open addressing in a table built by the compiler, at most half full.
constexpr std::size_t slotCount = 512;
constexpr quint8 emptySlot = 0xFF;
static_assert(std::size(keywords) < emptySlot && std::size(keywords) * 2 < slotCount);

template <typename Name>
constexpr std::size_t slotOf(const Name &name)
{
    quint32 hash = 0;
    for (const auto letter : name)
        hash = hash * 31 + static_cast<quint32>(letter);
    return (hash ^ (hash >> 9)) % slotCount;
}

constexpr auto keywordSlots = [] {
    std::array<quint8, slotCount> table{};
    table.fill(emptySlot);
    for (std::size_t i = 0; i < std::size(keywords); ++i) {
        std::size_t slot = slotOf(keywords[i].name);
        while (table[slot] != emptySlot)
            slot = (slot + 1) % slotCount;
        table[slot] = static_cast<quint8>(i);
    }
    return table;
}();

bool hasName(const RtfKeyword &keyword, std::u16string_view name)
{
    return std::equal(name.begin(), name.end(), keyword.name.begin(), keyword.name.end(),
                      [](char16_t a, char b) { return a == static_cast<unsigned char>(b); });
}

} // namespace

bool isRtfDestination(RtfAction action)
{
    switch (action) {
    case SkipDestination:
    case ReadDestination:
    case PassOver:
    case ShowAfterAll:
    case StartFontTable:
    case StartColourTable:
        return true;
    default:
        return false;
    }
}

const RtfKeyword *findRtfKeyword(QStringView name)
{
    const std::u16string_view units(name.utf16(), static_cast<std::size_t>(name.size()));
    for (std::size_t slot = slotOf(units); keywordSlots[slot] != emptySlot;
         slot = (slot + 1) % slotCount) {
        const RtfKeyword &keyword = keywords[keywordSlots[slot]];
        if (hasName(keyword, units))
            return &keyword;
    }
    return nullptr;
}

} // namespace ORVTListview
