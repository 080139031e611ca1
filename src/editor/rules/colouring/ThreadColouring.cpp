#include "editor/rules/colouring/ThreadColouring.h"

#include "base/ThreadState.h"
#include "editor/rules/language/Vocabulary.h"

namespace ORVTListview {

ColourEngine threadColouring()
{
    return {threadPart<CodeWordList>(), threadPart<Messages>().service()};
}

void refillThreadWordList()
{
    threadPart<CodeWordList>().FillCodeWordList(threadPart<Vocabulary>());
}

} // namespace ORVTListview
