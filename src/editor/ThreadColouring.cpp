#include "editor/ThreadColouring.h"

#include "editor/Vocabulary.h"
#include "shared/ThreadState.h"

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
