#include "editor/rules/structure/BlockWalk.h"

#include <algorithm>

namespace ORVTListview {

QList<BlockWord> BlockWalk::read(const QList<BlockWord> &words)
{
    const bool isForwards = m_direction == Direction::Forwards;
    const BlockWord::Kind inner = isForwards ? BlockWord::If : BlockWord::EndIf;
    const BlockWord::Kind outer = isForwards ? BlockWord::EndIf : BlockWord::If;
    QList<BlockWord> ours;
    for (qsizetype i = 0; i < words.size() && !m_isDone; ++i) {
        const BlockWord &word = words[isForwards ? i : words.size() - 1 - i];
        if (word.kind == inner) {
            ++m_depth;
        } else if (m_depth == 0) {
            ours.append(word);
            m_isDone = word.kind == outer;
        } else if (word.kind == outer) {
            --m_depth;
        }
    }
    return ours;
}

} // namespace ORVTListview
