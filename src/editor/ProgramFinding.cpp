#include "editor/ProgramFinding.h"

#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "editor/WordInBox.h"
#include "find/rules/ProgramSearch.h"
#include "find/rules/SearchHistory.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

bool ProgramFinding::findAgain(Way way) const
{
    if (!mayGoIn(m_tools.box))
        return false;
    const auto &[text, how] = threadPart<SearchHistories>().last;
    const QString wanted = asInBox(text);
    const TextPiece selected{m_tools.box.SelStart(), m_tools.box.SelLength()};
    const qint32 place = nextPlace(wanted, how, selected, way);
    if (place < 0)
        return false;
    show({place, static_cast<qint32>(wanted.size())});
    return true;
}

bool ProgramFinding::findWordAtCaret(Way way) const
{
    if (!mayGoIn(m_tools.box))
        return false;
    const WordAtCaret word = GetWordAtCaret(m_tools.box);
    const TextPiece own{word.WordStart - 1, static_cast<qint32>(word.Word.size())};
    const qint32 place = nextPlace(word.Word, {.wholeWord = true}, own, way);
    if (place < 0 || place == own.start)
        return false;
    show({place, own.length});
    return true;
}

qint32 ProgramFinding::nextPlace(QStringView wanted, TextSearch how, const TextPiece &from,
                                 Way way) const
{
    const QString text = m_tools.box.Text();
    const bool isForwards = way == Way::Forwards;
    const auto find = [&](qsizetype start) {
        return isForwards ? findInProgram(text, wanted, start, how)
                          : findInProgramBefore(text, wanted, start, how);
    };
    const qsizetype place = find(isForwards ? from.end() : from.start);
    return static_cast<qint32>(place < 0 ? find(isForwards ? 0 : text.size()) : place);
}

void ProgramFinding::show(const TextPiece &piece) const
{
    const KeptView view(m_tools.box);
    m_tools.box.setSelStart(piece.start);
    m_tools.box.setSelLength(piece.length);
}

} // namespace ORVTListview
