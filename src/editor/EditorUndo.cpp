#include "editor/EditorUndo.h"

#include "base/ThreadState.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr auto idleAfter = 400ms; // since the last snapshot

UndoStore &ring()
{
    return threadPart<UndoStore>();
}

const RichTextSettings &editorSettings()
{
    return threadPart<EditorState>().EditorSettings;
}

} // namespace

EditorUndo::EditorUndo(RichTextBox &box)
    : m_box(box)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &EditorUndo::encodeWhenIdle);
}

void EditorUndo::noteTyped(QStringView text, bool isReady)
{
    const bool isBlank = text == u" ";
    if (!isBlank)
        m_isTypedSinceSnapshot = true;
    else if (m_isTypedSinceSnapshot)
        PushUndoSnapshot(isReady);
}

void EditorUndo::PushUndoSnapshot(bool isReady)
{
    if (ring().IsRestoringUndo())
        return;
    m_isTypedSinceSnapshot = false;
    if (!isReady || m_box.TextLength() == 0)
        return;
    ring().StoreUndoSnapshot(shown());
    m_idle.start(idleAfter);
}

bool EditorUndo::step(bool forwards, QString &ErrMsg)
{
    const UndoStore::Restoring restoring(ring());
    try {
        const bool canStep = forwards ? ring().CanRedo() : ring().CanUndo();
        if (!canStep)
            return forwards && bringBackKeptText();
        m_kept.beforeStep(ring(), shown());
        const std::optional<qint16> slot =
            forwards ? ring().RedoStepForward() : ring().UndoStepBack();
        const QString record = slot ? ring().FetchUndoSnapshot(*slot) : QString();
        if (record.isEmpty())
            return false;
        const UndoRecord state = splitUndoRecord(record);
        show(state, colouredText(threadColouring(), state.text, false, editorSettings()));
        return true;
    } catch (const Error &error) {
        ErrMsg = Localise(error.Description());
        return false;
    }
}

bool EditorUndo::bringBackKeptText()
{
    const UndoStore::Restoring restoring(ring());
    const std::optional<UndoRecord> kept = m_kept.bringBack();
    // Unlike a slot it is shown exactly as it was, without the spacing of colouring.
    if (kept)
        show(*kept, finishedText(threadColouring(), kept->text, editorSettings()));
    return kept.has_value();
}

void EditorUndo::show(const UndoRecord &record, const ColouredText &text)
{
    m_box.setColoured(text);
    m_box.setSelStart(record.selectionStart);
    m_box.setSelLength(record.selectionLength);
    m_box.ensureCursorVisible();
}

UndoRecord EditorUndo::shown() const
{
    return {m_box.Text(), m_box.SelStart(), m_box.SelLength()};
}

void EditorUndo::resetBase()
{
    noteEdit();
    ring().ResetUndoBase(m_box.Text());
    m_idle.start(idleAfter);
}

void EditorUndo::clearHistory()
{
    ring().ClearUndoHistory();
    m_kept.noteEdit();
}

void EditorUndo::noteEdit()
{
    if (!ring().IsRestoringUndo())
        m_kept.noteEdit();
}

void EditorUndo::encodeWhenIdle()
{
    if (ring().encodePending())
        m_idle.start(0ms);
}

} // namespace ORVTListview
