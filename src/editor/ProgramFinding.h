#pragma once

#include "editor/CommandTools.h"

#include <QtCore/QStringView>

namespace ORVTListview {

struct TextSearch;

// Goes to what is searched for without a dialog: from the selection on, and round at the
// end. What is found is selected. False, and nothing done, when there is nothing.
class ProgramFinding
{
public:
    explicit ProgramFinding(const CommandTools &tools)
        : m_tools(tools)
    {
    }

    enum class Way { Forwards, Backwards };

    // What the find dialog searched for last, in the same manner.
    bool findAgain(Way way) const;

    // The word at the caret, as a whole and whatever its letter case.
    bool findWordAtCaret(Way way) const;

private:
    qint32 nextPlace(QStringView wanted, TextSearch how, const TextPiece &from, Way way) const;
    void show(const TextPiece &piece) const;

    const CommandTools m_tools;
};

} // namespace ORVTListview
