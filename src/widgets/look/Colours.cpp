#include "widgets/look/Colours.h"

#include "widgets/look/Luminance.h"

#include <array>

namespace ORVTListview {
namespace {

struct SystemColour
{
    quint32 number = 0;
    QPalette::ColorRole role = QPalette::NoRole;
    QPalette::ColorRole textRole = QPalette::NoRole; // what is written on it
    QPalette::ColorGroup group = QPalette::Current;
};

constexpr std::array systemColours{
    SystemColour{0, QPalette::Midlight, QPalette::WindowText}, // scroll bar
    SystemColour{1, QPalette::Window, QPalette::WindowText},   // desktop
    SystemColour{2, QPalette::Highlight, QPalette::HighlightedText, QPalette::Active},
    SystemColour{3, QPalette::Highlight, QPalette::HighlightedText, QPalette::Inactive},
    SystemColour{4, QPalette::Window, QPalette::WindowText}, // menu
    SystemColour{5, QPalette::Base, QPalette::Text},
    SystemColour{6, QPalette::Shadow, QPalette::BrightText}, // window frame
    SystemColour{7, QPalette::WindowText, QPalette::Window}, // menu text
    SystemColour{8, QPalette::Text, QPalette::Base},
    SystemColour{9, QPalette::HighlightedText, QPalette::Highlight, QPalette::Active},
    SystemColour{10, QPalette::Button, QPalette::ButtonText}, // active border
    SystemColour{11, QPalette::Button, QPalette::ButtonText}, // inactive border
    SystemColour{12, QPalette::Mid, QPalette::WindowText},    // application work space
    SystemColour{13, QPalette::Highlight, QPalette::HighlightedText},
    SystemColour{14, QPalette::HighlightedText, QPalette::Highlight},
    SystemColour{15, QPalette::Button, QPalette::ButtonText},
    SystemColour{16, QPalette::Dark, QPalette::BrightText}, // button shadow
    SystemColour{17, QPalette::Text, QPalette::Base, QPalette::Disabled},
    SystemColour{18, QPalette::ButtonText, QPalette::Button},
    SystemColour{19, QPalette::HighlightedText, QPalette::Highlight, QPalette::Inactive},
    SystemColour{20, QPalette::Light, QPalette::ButtonText},  // button highlight
    SystemColour{21, QPalette::Shadow, QPalette::BrightText}, // dark button shadow
    SystemColour{22, QPalette::Midlight, QPalette::ButtonText},
    SystemColour{23, QPalette::ToolTipText, QPalette::ToolTipBase},
    SystemColour{24, QPalette::ToolTipBase, QPalette::ToolTipText},
    SystemColour{26, QPalette::Link, QPalette::Base},
};

const SystemColour *findSystemColour(Colour colour)
{
    const auto number = static_cast<quint32>(colour) & 0x7fffffffU;
    for (const SystemColour &entry : systemColours) {
        if (entry.number == number)
            return &entry;
    }
    return nullptr;
}

} // namespace

QColor Colours::toColor(Colour colour, const QPalette &palette)
{
    if (colour < 0) {
        const SystemColour *entry = findSystemColour(colour);
        return entry ? palette.color(entry->group, entry->role) : palette.color(QPalette::Text);
    }
    return QColor(colour & 0xff, (colour >> 8) & 0xff, (colour >> 16) & 0xff);
}

Colour Colours::fromColor(const QColor &colour)
{
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

QColor Colours::textOn(Colour background, const QPalette &palette)
{
    if (background < 0) {
        const SystemColour *entry = findSystemColour(background);
        return palette.color(entry ? entry->textRole : QPalette::Text);
    }
    // The luminance at which black and white stand out equally.
    constexpr double middle = 0.179;
    return luminance(toColor(background, palette)) > middle ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace ORVTListview
