#include "editor/rules/colouring/ThreadColouring.h"

#include "base/ThreadState.h"
#include "editor/rules/language/Vocabulary.h"

namespace ORVTListview {

CodeWordList &threadWordList()
{
    auto &words = threadPart<CodeWordList>();
    words.follow(threadPart<Vocabulary>());
    return words;
}

ColourEngine threadColouring()
{
    return {threadWordList(), threadPart<Messages>().service()};
}

void refillThreadWordList()
{
    threadPart<CodeWordList>().FillCodeWordList(threadPart<Vocabulary>());
}

} // namespace ORVTListview
