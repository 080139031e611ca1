#pragma once

#include "editor/CommandTools.h"

#include <QtCore/QStringList>

namespace ORVTListview {

class LineCommands;

// Commands that write the selected lines, or the selection, in another way. Each is one
// step of undo, and nothing when all is so already.
class TextCommands
{
public:
    TextCommands(const CommandTools &tools, const LineCommands &lines)
        : m_tools(tools)
        , m_lines(lines)
    {
    }

    void toggleComment() const;

    // The selection keeps its colours; a listed word is written as it is listed once its
    // line is finished again.
    void upperCase() const;
    void lowerCase() const;

    // The selected lines, or all without a selection: indented by their blocks, spaced as
    // colouring the whole text spaces them. Nothing inside a comment changes, nor what
    // tells words apart; blanks at a line's end go.
    void tidy() const;

private:
    void rewrite(const LineSpan &lines, const QStringList &texts) const;
    void changeCase(QString (*change)(const QString &text)) const;
    QString spaced(const QString &words) const;

    const CommandTools m_tools;
    const LineCommands &m_lines;
};

} // namespace ORVTListview
