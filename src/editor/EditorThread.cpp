#include "editor/EditorThread.h"

#include "base/MessageService.h"
#include "base/ThreadState.h"
#include "editor/EditorClock.h"
#include "editor/OpenWordList.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "editor/rules/undo/UndoStore.h"
#include "shared/points/HostForms.h"

namespace ORVTListview {

EditorThread EditorThread::current()
{
    return {threadPart<UndoStore>(),   threadPart<EditorState>(), threadPart<CodeWordList>(),
            threadPart<Vocabulary>(),  threadPart<Messages>(),    threadPart<HostForms>(),
            threadPart<EditorClock>(), threadPart<OpenWordList>()};
}

CodeWordList &EditorThread::knownWords() const
{
    words.follow(vocabulary);
    return words;
}

ColourEngine EditorThread::colouring() const
{
    return {knownWords(), messages.service()};
}

ColouredText EditorThread::finished(const QString &text, Spelling spelling) const
{
    if (!knownWords().index().isEmpty())
        return finishedText(colouring(), text, settings(), spelling);
    ColouredText plain{text, {}};
    plain.appendRun(text.size(), ColouredText::automatic);
    return plain;
}

FinishedBy EditorThread::finishedBy() const
{
    FinishedBy result;
    result.words = knownWords().changes();
    for (int slot = 1; slot <= colourSlots; ++slot)
        result.colours[static_cast<std::size_t>(slot - 1)] = colourOfSlot(slot, settings());
    return result;
}

const RichTextSettings &EditorThread::settings() const
{
    return state.EditorSettings;
}

} // namespace ORVTListview
