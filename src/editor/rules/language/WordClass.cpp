#include "editor/rules/language/WordClass.h"

namespace ORVTListview {

qint32 colourOfSlot(int slot, const RichTextSettings &settings)
{
    switch (slot) {
    case BackgroundColour:
        return settings.BackColor;
    case CommentColour:
        return settings.CommentColor;
    case ConstantColour:
        return settings.ConstantColor;
    case InputColour:
        return settings.InputColor;
    case OutputColour:
        return settings.OutputColor;
    case ReservedWordColour:
        return settings.ReservedWordColor;
    case VariableColour:
        return settings.VariableColor;
    case NviColour:
        return settings.nviFPAColor;
    default:
        return 0;
    }
}

ClassStyle styleOf(WordClass wordClass, const RichTextSettings &settings)
{
    const auto style = [&settings](ColourIndex index, qint16 image) {
        return ClassStyle{index, colourOfSlot(index, settings), image};
    };
    switch (wordClass) {
    case WordClass::Variable:
        return style(VariableColour, 67);
    case WordClass::Constant:
        return style(ConstantColour, 66);
    case WordClass::Input:
        return style(InputColour, 68);
    case WordClass::Output:
        return style(OutputColour, 69);
    case WordClass::Nvi:
        return style(NviColour, 71);
    case WordClass::Keyword:
        return style(ReservedWordColour, 64);
    case WordClass::TimeWord:
        return style(ReservedWordColour, 62);
    case WordClass::Function:
        return style(ReservedWordColour, 63);
    case WordClass::FanIn:
        return style(ReservedWordColour, 61);
    case WordClass::Comment:
        return style(CommentColour, 0);
    case WordClass::Other:
        break;
    }
    return {};
}

void ClassStyleForType(qint32 TypeIndex, const RichTextSettings &settings, ClassStyle &Style)
{
    switch (TypeIndex) {
    case dsVariable:
        Style = styleOf(WordClass::Variable, settings);
        break;
    case dsConst:
        Style = styleOf(WordClass::Constant, settings);
        break;
    case dsInput:
        Style = styleOf(WordClass::Input, settings);
        break;
    case dsOutput:
        Style = styleOf(WordClass::Output, settings);
        break;
    case dsNvi:
        Style = styleOf(WordClass::Nvi, settings);
        break;
    default:
        break;
    }
}

} // namespace ORVTListview
