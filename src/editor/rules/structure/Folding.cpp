#include "editor/rules/structure/Folding.h"

#include <algorithm>

namespace ORVTListview {
namespace {

// What a line adds to a depth; an ENDIF without an IF before it on the line, and there
// is none in front of a block's beginning, adds nothing.
int depthAfter(QStringView line)
{
    int depth = 0;
    for (const BlockWord &word : blockWordsOf(line)) {
        if (word.kind == BlockWord::If)
            ++depth;
        else if (word.kind == BlockWord::EndIf)
            depth = std::max(0, depth - 1);
    }
    return depth;
}

} // namespace

bool BlockFold::begins(QStringView line)
{
    return depthAfter(line) > 0;
}

bool BlockFold::read(QStringView line)
{
    if (!m_hasBegun) {
        m_hasBegun = true;
        m_depth = depthAfter(line);
        return false;
    }
    for (const BlockWord &word : blockWordsOf(line)) {
        if (word.kind == BlockWord::If)
            ++m_depth;
        else if (word.kind == BlockWord::EndIf && --m_depth == 0)
            return true;
    }
    return false;
}

void ProgramBlocks::read(QStringView line)
{
    for (const BlockWord &word : blockWordsOf(line)) {
        if (word.kind == BlockWord::If)
            m_open.append(m_line);
        if (word.kind != BlockWord::EndIf || m_open.isEmpty())
            continue;
        const int first = m_open.takeLast();
        if (first == m_line)
            continue;
        while (!m_outermost.isEmpty() && m_outermost.constLast().first >= first)
            m_outermost.removeLast();
        m_outermost.append({first, m_line});
    }
    ++m_line;
}

} // namespace ORVTListview
