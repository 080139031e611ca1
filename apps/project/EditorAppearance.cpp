#include "project/EditorAppearance.h"

#include "project/ProjectTexts.h"

#include "editor/rules/colouring/ColourTable.h"

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

struct SystemColour
{
    QLatin1StringView name;
    qint32 index = 0;
};

constexpr std::array systemColours = {
    SystemColour{"menu"_L1, 4},        SystemColour{"window"_L1, 5},
    SystemColour{"menuText"_L1, 7},    SystemColour{"windowText"_L1, 8},
    SystemColour{"highlight"_L1, 13},  SystemColour{"highlightText"_L1, 14},
    SystemColour{"button"_L1, 15},     SystemColour{"greyText"_L1, 17},
    SystemColour{"buttonText"_L1, 18}, SystemColour{"toolTipText"_L1, 23},
    SystemColour{"toolTip"_L1, 24},
};

struct ColourField
{
    QLatin1StringView member;
    qint32 RichTextSettings::*field = nullptr;
};

constexpr std::array colourFields = {
    ColourField{"backColour"_L1, &RichTextSettings::BackColor},
    ColourField{"commentColour"_L1, &RichTextSettings::CommentColor},
    ColourField{"constantColour"_L1, &RichTextSettings::ConstantColor},
    ColourField{"inputColour"_L1, &RichTextSettings::InputColor},
    ColourField{"outputColour"_L1, &RichTextSettings::OutputColor},
    ColourField{"reservedWordColour"_L1, &RichTextSettings::ReservedWordColor},
    ColourField{"variableColour"_L1, &RichTextSettings::VariableColor},
    ColourField{"networkInputColour"_L1, &RichTextSettings::nviFPAColor},
    ColourField{"networkOutputColour"_L1, &RichTextSettings::nvoFPAColor},
};

std::optional<qint32> systemColour(QStringView name)
{
    const auto *const found =
        std::find_if(systemColours.cbegin(), systemColours.cend(),
                     [name](const auto &colour) { return colour.name == name; });
    if (found == systemColours.cend())
        return std::nullopt;
    return static_cast<qint32>(0x80000000U | static_cast<quint32>(found->index));
}

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

qint32 readColour(const JsonPlace &place, qint32 absent)
{
    if (!place.isPresent())
        return absent;
    const std::optional<qint32> colour = colourFromText(place.text());
    if (!colour)
        place.fail(ProjectTexts::tr("\"%1\" is no colour (\"#rrggbb\" or a system colour)")
                       .arg(place.text()));
    return *colour;
}

qint16 readFontSize(const JsonPlace &place)
{
    constexpr qint32 largest = 400;
    const qint32 size = place.integer(10);
    if (size < 1 || size > largest)
        place.fail(ProjectTexts::tr("a size from 1 to %1 points is expected").arg(largest));
    return static_cast<qint16>(size);
}

} // namespace

std::optional<qint32> colourFromText(const QString &text)
{
    constexpr auto prefix = "system:"_L1;
    if (text.startsWith(prefix))
        return systemColour(QStringView(text).sliced(prefix.size()));
    if (text.size() != 7 || text.front() != u'#' ||
        !std::all_of(text.cbegin() + 1, text.cend(), isHexDigit))
        return std::nullopt;
    const qint32 rgb = text.sliced(1).toInt(nullptr, 16);
    return ((rgb & 0xFF) << 16) | (rgb & 0xFF00) | (rgb >> 16);
}

RichTextSettings readAppearance(const JsonPlace &editor)
{
    QStringList members = {u"fontName"_s, u"fontSize"_s, u"fontStyle"_s};
    for (const ColourField &field : colourFields)
        members.append(field.member);
    editor.allowOnly(members);

    RichTextSettings settings = defaultColours();
    settings.FontName = editor.member(u"fontName"_s).text(u"Monospace"_s);
    settings.FontSize = readFontSize(editor.member(u"fontSize"_s));
    settings.FontStyle = editor.member(u"fontStyle"_s).text();
    for (const ColourField &field : colourFields)
        settings.*field.field = readColour(editor.member(field.member), settings.*field.field);
    return settings;
}

} // namespace ORVTListview
