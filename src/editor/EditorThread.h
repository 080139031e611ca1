#pragma once

#include "editor/rules/colouring/ColourEngine.h"
#include "editor/rules/language/WordClass.h"

#include <array>

namespace ORVTListview {

enum class Spelling;
struct ColouredText;
struct EditorClock;
struct EditorState;
struct HostForms;
struct OpenWordList;
class Messages;
class UndoStore;
class Vocabulary;
struct RichTextSettings;

// What the finished look of a line goes by: the words that are known, as
// CodeWordList::changes, and the colours.
struct FinishedBy
{
    quint64 words = 0;
    std::array<qint32, colourSlots> colours{};

    friend bool operator==(const FinishedBy &, const FinishedBy &) = default;
};

// What an editor shares with the others of its thread, looked up once, where the
// editor is made.
struct EditorThread
{
    static EditorThread current();

    // The word index, with what the ready collections hold now.
    CodeWordList &knownWords() const;

    ColourEngine colouring() const;

    // As finishedText; without known words there is nothing to tell words by.
    ColouredText finished(const QString &text, Spelling spelling) const;
    FinishedBy finishedBy() const;
    const RichTextSettings &settings() const;

    UndoStore &ring;
    EditorState &state;
    CodeWordList &words;
    Vocabulary &vocabulary;
    Messages &messages;
    HostForms &forms;
    EditorClock &clock;
    OpenWordList &openList;
};

} // namespace ORVTListview
