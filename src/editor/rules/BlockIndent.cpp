#include "editor/rules/BlockIndent.h"

#include "editor/rules/structure/BlockWords.h"

#include <algorithm>

namespace ORVTListview {

int BlockIndent::read(QStringView line)
{
    const QList<BlockWord> words = blockWordsOf(line);
    const QList<TextPiece> all = words.isEmpty() ? QList<TextPiece>() : wordsOf(line);
    int own = m_depth;
    bool isLeading = true;
    for (qsizetype i = 0; i < words.size(); ++i) {
        isLeading = isLeading && words[i].place == all[i];
        if (words[i].kind == BlockWord::If)
            ++m_depth;
        else if (words[i].kind == BlockWord::EndIf)
            m_depth = std::max(0, m_depth - 1);
        if (isLeading && words[i].kind == BlockWord::EndIf)
            own = m_depth;
        else if (isLeading && words[i].kind == BlockWord::Else)
            own = std::max(0, m_depth - 1);
        isLeading = isLeading && words[i].kind == BlockWord::EndIf;
    }
    return own;
}

bool opensBlock(QStringView line)
{
    int depth = 0;
    for (const BlockWord &word : blockWordsOf(line)) {
        switch (word.kind) {
        case BlockWord::If:
            ++depth;
            break;
        case BlockWord::Else: // of a block that began before
            depth = std::max(depth, 1);
            break;
        case BlockWord::EndIf:
            depth = std::max(depth - 1, 0);
            break;
        }
    }
    return depth > 0;
}

bool closesBlock(QStringView line)
{
    const QList<BlockWord> words = blockWordsOf(line);
    return !words.isEmpty() && words[0].kind != BlockWord::If && words[0].place == wordsOf(line)[0];
}

} // namespace ORVTListview
