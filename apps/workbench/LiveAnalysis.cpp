#include "LiveAnalysis.h"

#include "CheckTexts.h"
#include "base/ThreadState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr qint32 linesOfSlice = 1000;

} // namespace

LiveAnalysis::LiveAnalysis(CodeView &view, RichTextBox &box, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_box(box)
    , m_analysis([&box](qint32 line) { return box.lineText(line); })
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(300ms);
    m_slice.setInterval(0ms);
    m_analysis.reset(box.document()->blockCount());
    connect(box.document(), &QTextDocument::contentsChange, this, &LiveAnalysis::noteChange);
    connect(&m_pause, &QTimer::timeout, this, [this] { m_slice.start(); });
    connect(&m_slice, &QTimer::timeout, this, &LiveAnalysis::work);
}

void LiveAnalysis::setOtherUses(const OtherUses &uses)
{
    m_analysis.setOtherUses(uses);
    m_pause.start();
}

void LiveAnalysis::takeWords()
{
    const CodeWordList &list = threadWordList();
    if (m_wordChanges == list.changes())
        return;
    m_wordChanges = list.changes();
    const ProgramWords words(threadPart<Vocabulary>(), list.index());
    if (words.isSame(m_words))
        return; // the list has been filled anew with what it had
    m_words = words;
    m_analysis.setWords(m_words);
    m_pause.start();
}

// The lines that the change touches were as many as there are more or fewer now. Without
// another text, only letters of a line may be others, whose case may be that of its words.
void LiveAnalysis::noteChange(int from, int /*removed*/, int added)
{
    const QTextDocument &text = *m_box.document();
    const int first = text.findBlock(from).blockNumber();
    const QTextBlock end = text.findBlock(from + added);
    const int last = end.isValid() ? end.blockNumber() : text.blockCount() - 1;
    const int lines = last - first + 1;
    if (m_box.keepsText() && lines > 1)
        return;
    const int more = text.blockCount() - m_analysis.lineCount();
    const int former = lines - more;
    if (first < 0 || former < 0)
        m_analysis.reset(text.blockCount());
    else
        m_analysis.replaceLines(first, former, lines);
    const bool wasEmptied = std::exchange(m_isEmptied, text.isEmpty());
    if (more != 0 && !wasEmptied && !m_isEmptied)
        Q_EMIT linesReplaced({first + 1, std::max(0, former), lines});
    m_slice.stop();
    m_pause.start();
}

void LiveAnalysis::work()
{
    takeWords();
    if (!m_analysis.work(linesOfSlice))
        return;
    m_slice.stop();
    m_pause.stop();
    showProblems();
}

const ProgramAnalysis &LiveAnalysis::finished()
{
    takeWords();
    m_analysis.finish();
    m_pause.stop();
    m_slice.stop();
    showProblems();
    return m_analysis;
}

QList<UsePlace> LiveAnalysis::usesOf(const QString &name)
{
    finished();
    return m_analysis.usesOf(name);
}

void LiveAnalysis::retranslate()
{
    if (m_analysis.isDone())
        showProblems();
}

// What is shown already is left alone, so that nothing flickers or is told again.
void LiveAnalysis::showProblems()
{
    const QList<Problem> found = problems();
    if (m_view.problems() != found)
        m_view.setProblems(found);
    Q_EMIT analysed();
}

QList<Problem> LiveAnalysis::problems() const
{
    QList<Problem> problems;
    for (const ProgramProblem &each : m_analysis.problems())
        problems.append({each.line, each.found.place.start, each.found.place.length,
                         severityOf(each.found.fault), faultText(each.found)});
    return problems;
}

} // namespace ORVTListview
