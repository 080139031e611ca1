#pragma once

#include "base/ColouredText.h"

#include <QtCore/QString>

namespace ORVTListview {

class RichTextBox;

// What Tab, Shift+Tab, Backspace, Up and Down do to lines beyond what a
// plain box does. None of them takes a snapshot.
class LineCommands
{
public:
    explicit LineCommands(RichTextBox &box);

    // Blanks and tabs only; four blanks at first.
    QString indentUnit() const { return m_unit; }

    // Ignores a text that is empty or holds anything else.
    void setIndentUnit(const QString &unit);

    // Shows a tab as wide as the unit is in the box's font.
    void fitTabStops();

    // In percent of the box's font.
    void setZoom(int percent);

    // The lines that the selection touches; a line at whose very start it ends is
    // not touched, empty lines stay empty. The selection keeps its text and its direction.
    void indentSelectedLines();

    // Takes at most one unit, or one tab, from each line.
    void unindentSelectedLines();

    // In the blanks before a line's first word: goes back to the indent step
    // before. False, and nothing done, anywhere else.
    bool unindentBeforeCaret();

    // Takes the blank or tab directly before the caret; false if there is none.
    bool deleteBlankBeforeCaret();

    // Puts the caret at the same offset of the line before (-1) or behind (1), when
    // the offset is at least 1 and the line is that long; else false.
    bool moveToSameOffset(int lines);

private:
    template <typename ChangeLine>
    void changeSelectedLines(ChangeLine changeLine);

    QString withoutOneUnit(const QString &line) const;

    RichTextBox &m_box;
    int m_zoom = 100;
    QString m_unit = QStringLiteral("    ");
};

} // namespace ORVTListview
