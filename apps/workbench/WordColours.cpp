#include "WordColours.h"

#include "base/ColouredText.h"
#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "editor/rules/structure/BlockWords.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <algorithm>
#include <chrono>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr qint32 linesOfSlice = 1000;

} // namespace

WordColours::WordColours(ProgramViews &programs, QObject *parent)
    : QObject(parent)
    , m_programs(programs)
{
    m_slice.setInterval(0ms);
    connect(&m_slice, &QTimer::timeout, this, &WordColours::work);
}

void WordColours::take()
{
    const CodeWordList &list = threadWordList();
    m_changes = list.changes();
    m_words = ProgramWords(threadPart<Vocabulary>(), list.index());
    m_others.clear();
    m_slice.stop();
}

// Later: the step that changes the names may change the programs, too.
void WordColours::follow()
{
    const CodeWordList &list = threadWordList();
    if (m_changes == list.changes())
        return;
    m_changes = list.changes();
    const ProgramWords words(threadPart<Vocabulary>(), list.index());
    const QSet<QString> others = words.differences(m_words);
    if (others.isEmpty())
        return; // the list has been filled anew with what it had
    m_words = words;
    m_others += others;
    m_next = {};
    m_slice.start();
}

void WordColours::work()
{
    const ProgramList &list = m_programs.list();
    if (m_next.program >= list.size()) {
        m_others.clear();
        m_slice.stop();
        return;
    }
    RichTextBox &box = *m_programs.view(list.at(m_next.program).id).RTextBox();
    if (box.isComposing())
        return; // until the line has what is composed
    const qint32 end = std::min(m_next.line + linesOfSlice, box.lineCount());
    for (; m_next.line < end; ++m_next.line) {
        if (isConcerned(box.lineText(m_next.line)))
            colour(box, m_next.line);
    }
    if (end == box.lineCount())
        m_next = {m_next.program + 1, 0};
}

bool WordColours::isConcerned(const QString &line) const
{
    return std::ranges::any_of(wordsOf(line), [&](const TextPiece &word) {
        return m_others.contains(foldedCase(QStringView(line).sliced(word.start, word.length)));
    });
}

void WordColours::colour(RichTextBox &box, qint32 line) const
{
    box.recolour(box.lineStart(line),
                 finishedText(threadColouring(), box.lineText(line),
                              threadPart<EditorState>().EditorSettings, Spelling::AsTyped));
}

} // namespace ORVTListview
