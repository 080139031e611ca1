#include <ORVTListview/LibraryTexts.h>

#include <array>

// A comment that begins with a colon is for the translators; lupdate hands it on.

namespace ORVTListview {
namespace {

using enum TextPlace;

constexpr LibraryText texts[] = {
    // The point types
    //: The program of the controller
    {QT_TRANSLATE_NOOP("ORVTListview", "Code"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Variables"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Constants"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Inputs"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Outputs"), Caption},
    //: PID control loops
    {QT_TRANSLATE_NOOP("ORVTListview", "Controllers"), Caption},
    //: Trend logs
    {QT_TRANSLATE_NOOP("ORVTListview", "Logs"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Timers"), Caption},
    //: Functions that start a plant as late as possible before occupancy
    {QT_TRANSLATE_NOOP("ORVTListview", "Optimum Starts"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Network Var Inputs"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Network Var Outputs"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Input Parameters"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Output Parameters"), Caption},

    // The tree
    {QT_TRANSLATE_NOOP("ORVTListview", "Device"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Basic Programming"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Internal Points"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Built-In Functions"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Network Variables"), Caption},
    {QT_TRANSLATE_NOOP("ORVTListview", "Hardware Configuration"), Caption},

    // The columns of the point tables
    //: The name of a point, as the program uses it
    {QT_TRANSLATE_NOOP("ORVTListview", "Label"), ColumnHeader},
    //: Manual or automatic
    {QT_TRANSLATE_NOOP("ORVTListview", "Mode"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Value"), ColumnHeader},
    //: The unit of measure of a point
    {QT_TRANSLATE_NOOP("ORVTListview", "Units"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Description"), ColumnHeader},
    //: Whether the point was checked when the plant was put into service
    {QT_TRANSLATE_NOOP("ORVTListview", "Commissioned"), ColumnHeader},
    //: The switch on the device that overrides an output
    {QT_TRANSLATE_NOOP("ORVTListview", "Hw Override Mode"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Hw Override Value"), ColumnHeader},
    //: What a control loop measures
    {QT_TRANSLATE_NOOP("ORVTListview", "Input"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Setpoint"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Proportional Band"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Integral Gain"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Integral Time"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Derivative Gain"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Derivative Time"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Dead Band"), ColumnHeader},
    //: What is added to the output of a control loop
    {QT_TRANSLATE_NOOP("ORVTListview", "Bias"), ColumnHeader},
    //: Direct or reverse
    {QT_TRANSLATE_NOOP("ORVTListview", "Action"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Divider"), ColumnHeader},
    //: The point that a log records or a timer drives
    {QT_TRANSLATE_NOOP("ORVTListview", "Data"), ColumnHeader},
    //: The change of value that makes a log record
    {QT_TRANSLATE_NOOP("ORVTListview", "Differential"), ColumnHeader},
    //: The interval at which a log records
    {QT_TRANSLATE_NOOP("ORVTListview", "Time"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Format"), ColumnHeader},
    //: The unit of measure of a log
    {QT_TRANSLATE_NOOP("ORVTListview", "Unit"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Type"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Target Temperature"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Target Setpoint"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Outdoor Temperature"), ColumnHeader},
    //: The time programme that an optimum start follows
    {QT_TRANSLATE_NOOP("ORVTListview", "Schedule"), ColumnHeader},
    //: The longest time before occupancy at which the plant may start
    {QT_TRANSLATE_NOOP("ORVTListview", "Max Starting Time"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Format Name"), ColumnHeader},
    //: Whether a value survives a power failure
    {QT_TRANSLATE_NOOP("ORVTListview", "Persistent"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Name"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Data Source"), ColumnHeader},
    //: The scale's lower end of an analogue input, the rising edge of a digital one
    {QT_TRANSLATE_NOOP("ORVTListview", "Scale Min/Rising Edge"), ColumnHeader},
    //: The scale's upper end of an analogue input, the falling edge of a digital one
    {QT_TRANSLATE_NOOP("ORVTListview", "Scale Max/Falling Edge"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Input Min"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Input Max"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Correction"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "Filter"), ColumnHeader},
    //: Whether the value of an input is forced
    {QT_TRANSLATE_NOOP("ORVTListview", "Override"), ColumnHeader},
    {QT_TRANSLATE_NOOP("ORVTListview", "PWM Period"), ColumnHeader},

    // The pictures beside the table's caption
    {QT_TRANSLATE_NOOP("ORVTListview", "Click here to read data values"), ToolTip},
    //: The state of a component that waits for nothing
    {QT_TRANSLATE_NOOP("ORVTListview", "Idle"), Status},
    //: The state of a component that waits for the controller
    {QT_TRANSLATE_NOOP("ORVTListview", "Busy"), Status},

    // Find and replace
    {QT_TRANSLATE_NOOP("ORVTListview", "Find"), Title},
    {QT_TRANSLATE_NOOP("ORVTListview", "Find - Replace"), Title},
    {QT_TRANSLATE_NOOP("ORVTListview", "Find What"), Label},
    {QT_TRANSLATE_NOOP("ORVTListview", "Replace With"), Label},
    {QT_TRANSLATE_NOOP("ORVTListview", "Find Next"), Button},
    {QT_TRANSLATE_NOOP("ORVTListview", "Find Previous"), Button},
    {QT_TRANSLATE_NOOP("ORVTListview", "Close"), Button},
    //: Also the title of the window
    {QT_TRANSLATE_NOOP("ORVTListview", "Replace"), Button},
    //: Shows the fields for replacing
    {QT_TRANSLATE_NOOP("ORVTListview", "..."), Button},
    {QT_TRANSLATE_NOOP("ORVTListview", "Replace All"), Button},
    {QT_TRANSLATE_NOOP("ORVTListview", "Find Whole Word Only"), CheckBox},
    {QT_TRANSLATE_NOOP("ORVTListview", "Match Case"), CheckBox},
    {QT_TRANSLATE_NOOP("ORVTListview", "Searches for the full word by itself and not as part of "
                                       "a larger word."),
     ToolTip},
    //: Find What is the label of the field, in the words of its own translation
    {QT_TRANSLATE_NOOP("ORVTListview", "Finds all occurrences with the exact combination of "
                                       "uppercase and lowercase letters specified in the Find "
                                       "What box."),
     ToolTip},
    //: Stands before the position: Found in Row: 3, Col: 7
    {QT_TRANSLATE_NOOP("ORVTListview", "Found in"), Status},
    {QT_TRANSLATE_NOOP("ORVTListview", "Not found!"), Status},
    //: Numbers: the third match of seventeen is selected; %2 may be 17+ for at least 17
    {QT_TRANSLATE_NOOP("ORVTListview", "%1 of %2"), Status},
    //: A number of matches, of which none is selected; it may be 17+ for at least 17
    {QT_TRANSLATE_NOOP("ORVTListview", "%1 found"), Status},
    //: Stands behind a number: 3 replace(s)!
    {QT_TRANSLATE_NOOP("ORVTListview", "replace(s)!"), Status},

    // The code editor
    //: The caret's position, first piece: Row: 3, Col: 7
    {QT_TRANSLATE_NOOP("ORVTListview", "Row:"), Status},
    //: The caret's position, second piece: Row: 3, Col: 7
    {QT_TRANSLATE_NOOP("ORVTListview", ", Col:"), Status},
    {QT_TRANSLATE_NOOP("ORVTListview", "Undo"), Menu},
    {QT_TRANSLATE_NOOP("ORVTListview", "Redo"), Menu},
    {QT_TRANSLATE_NOOP("ORVTListview", "Cut"), Menu},
    {QT_TRANSLATE_NOOP("ORVTListview", "Copy"), Menu},
    //: Also the title of messages
    {QT_TRANSLATE_NOOP("ORVTListview", "Paste"), Menu},
    {QT_TRANSLATE_NOOP("ORVTListview", "Delete"), Menu},
    {QT_TRANSLATE_NOOP("ORVTListview", "Select All"), Menu},
    //: The strip beside the program, for screen readers
    {QT_TRANSLATE_NOOP("ORVTListview", "Line numbers"), ToolTip},
    //: In front of a field for a number
    {QT_TRANSLATE_NOOP("ORVTListview", "Go to line:"), ToolTip},
    //: The line of the caret, for screen readers; %1 is its number
    {QT_TRANSLATE_NOOP("ORVTListview", "Line %1"), ToolTip},
    //: A number: so many lines of the program are folded away, for screen readers
    {QT_TRANSLATE_NOOP("ORVTListview", "%1 lines hidden"), ToolTip},
    //: The list of known words, for screen readers
    {QT_TRANSLATE_NOOP("ORVTListview", "Known words"), ToolTip},
    //: The kind of a known word, such as AVERAGE
    {QT_TRANSLATE_NOOP("ORVTListview", "Functions"), Caption},
    //: The kind of a known word, such as IF
    {QT_TRANSLATE_NOOP("ORVTListview", "Reserved Words"), Caption},
    //: The list of known words
    {QT_TRANSLATE_NOOP("ORVTListview", "List not found!"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Invalid letter: '\\' that is reserved to RTF!"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "The text is too large."), Message},
    //: How the code editor looks
    {QT_TRANSLATE_NOOP("ORVTListview", "Code Text Setting"), Title},
    //: %1 is the name of a colour setting, such as BackColor
    {QT_TRANSLATE_NOOP("ORVTListview", "Bad %1 for Editer of Code!"), Message},

    // Cells of tables that users edit
    //: The content of a cell of yes or no
    {QT_TRANSLATE_NOOP("ORVTListview", "Yes"), Status},
    //: The content of a cell of yes or no
    {QT_TRANSLATE_NOOP("ORVTListview", "No"), Status},
    {QT_TRANSLATE_NOOP("ORVTListview", "This cell cannot be edited."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "This cell must not be empty."), Message},
    //: %1 is a number
    {QT_TRANSLATE_NOOP("ORVTListview", "Characters at most: %1."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "This text does not fit here."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "This is not a number."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Only a whole number fits here."), Message},
    //: %1 is a number
    {QT_TRANSLATE_NOOP("ORVTListview", "Decimals at most: %1."), Message},
    //: %1 is a number with its unit
    {QT_TRANSLATE_NOOP("ORVTListview", "The number must not be below %1."), Message},
    //: %1 is a number with its unit
    {QT_TRANSLATE_NOOP("ORVTListview", "The number must not be above %1."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "This is not in the list."), Message},
    //: %1 and %2 are the words for yes and no
    {QT_TRANSLATE_NOOP("ORVTListview", "This is neither %1 nor %2."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "There is no point of this name."), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "There is not enough room here."), Message},
    //: Behind a list of cells: so many are not listed
    {QT_TRANSLATE_NOOP("ORVTListview", "and %1 more"), Status},
    //: The button in a field by which the rows of a table are filtered
    {QT_TRANSLATE_NOOP("ORVTListview", "Empty the filter"), ToolTip},
    //: The header of a column, for screen readers; %1 is its text
    {QT_TRANSLATE_NOOP("ORVTListview", "%1, sorted upwards"), ToolTip},
    //: The header of a column, for screen readers; %1 is its text
    {QT_TRANSLATE_NOOP("ORVTListview", "%1, sorted downwards"), ToolTip},
    //: The value of a cell has changed
    {QT_TRANSLATE_NOOP("ORVTListview", "Changed"), Status},
    //: The value of a cell was read a while ago
    {QT_TRANSLATE_NOOP("ORVTListview", "Old"), Status},
    //: The value of a cell is set by hand
    {QT_TRANSLATE_NOOP("ORVTListview", "By hand"), Status},
    //: The value of a cell is an alarm
    {QT_TRANSLATE_NOOP("ORVTListview", "Alarm"), Status},
    //: A command: the current cell of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Edit"), Menu},
    //: A command: the selected cells of a table, and the headers of their columns
    {QT_TRANSLATE_NOOP("ORVTListview", "Copy with Headers"), Menu},
    //: A command: the topmost selected cell into those below
    {QT_TRANSLATE_NOOP("ORVTListview", "Fill Down"), Menu},
    //: A command: the rows of a table by a column
    {QT_TRANSLATE_NOOP("ORVTListview", "Sort Upwards"), Menu},
    //: A command: the rows of a table by a column
    {QT_TRANSLATE_NOOP("ORVTListview", "Sort Downwards"), Menu},
    //: A command: the rows of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Not Sorted"), Menu},
    //: A command: no filter of the rows of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "All Rows"), Menu},
    //: A command: to a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Add Row"), Menu},
    //: A command: of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Duplicate Rows"), Menu},
    //: A command: of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Remove Rows"), Menu},
    //: A command: rows of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Move Up"), Menu},
    //: A command: rows of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Move Down"), Menu},
    //: A command: as wide as its texts
    {QT_TRANSLATE_NOOP("ORVTListview", "Fit Column"), Menu},
    //: A command: as wide as their texts
    {QT_TRANSLATE_NOOP("ORVTListview", "Fit All Columns"), Menu},
    //: A command: of a table
    {QT_TRANSLATE_NOOP("ORVTListview", "Hide Column"), Menu},
    //: A menu: those of a table that are seen
    {QT_TRANSLATE_NOOP("ORVTListview", "Columns"), Menu},
    //: A step of undo
    {QT_TRANSLATE_NOOP("ORVTListview", "Edit Cell"), Menu},
    //: A step of undo: several cells at once
    {QT_TRANSLATE_NOOP("ORVTListview", "Edit Cells"), Menu},

    // Failures of undo and redo
    {QT_TRANSLATE_NOOP("ORVTListview", "The undo snapshot's selection is not a number"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "The undo snapshot's selection is too large a number"),
     Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "The undo snapshot has fewer than three fields"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview",
                       "The undo snapshot's text holds the separator of its fields"),
     Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "The text holds a character that the 8-bit code page lacks"),
     Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Insufficient memory to compress string"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Insufficient space in output buffer to compress string"),
     Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Unknown error during compress operation"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Insufficient memory to uncompress string"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Insufficient space in output buffer to uncompress string"),
     Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Cannot uncompress corrupt data"), Message},
    {QT_TRANSLATE_NOOP("ORVTListview", "Unknown error during uncompress operation"), Message},
};

} // namespace

qsizetype longestText(TextPlace place)
{
    switch (place) {
    case Caption:
        return 28;
    case ColumnHeader:
        return 22;
    case Label:
    case Button:
        return 18;
    case CheckBox:
        return 26;
    case Menu:
        return 20;
    case Title:
    case Status:
        return 32;
    case ToolTip:
        return 140;
    case Message:
        return 80;
    }
    return 0;
}

std::span<const LibraryText> libraryTexts()
{
    return texts;
}

} // namespace ORVTListview
