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
constexpr auto standsAfter = 5s;  // since the last change

UndoStore &ring()
{
    return threadPart<UndoStore>();
}

const RichTextSettings &editorSettings()
{
    return threadPart<EditorState>().EditorSettings;
}

EditorClock::Time now()
{
    return threadPart<EditorClock>().now();
}

} // namespace

EditorUndo::EditorUndo(RichTextBox &box)
    : m_box(box)
    , m_changed(now())
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
    m_kept.beforeSnapshot(ring());
    ring().StoreUndoSnapshot(shown());
    m_kept.afterSnapshot(ring());
    m_idle.start(idleAfter);
}

bool EditorUndo::canUndo() const
{
    return ring().CanUndo() || m_kept.canGo(Way::Back);
}

bool EditorUndo::canRedo() const
{
    return ring().CanRedo() || m_kept.canGo(Way::Forward);
}

bool EditorUndo::step(Way way, QString &ErrMsg)
{
    beforeEdit(false);
    const UndoStore::Restoring restoring(ring());
    try {
        const bool canStep = way == Way::Forward ? ring().CanRedo() : ring().CanUndo();
        return canStep ? stepInRing(way) : showKept(m_kept.go(ring(), shown(), way));
    } catch (const Error &error) {
        ErrMsg = Localise(error.Description());
        return false;
    }
}

bool EditorUndo::stepInRing(Way way)
{
    m_kept.beforeStep(ring(), shown());
    m_idle.start(idleAfter);
    const std::optional<qint16> slot =
        way == Way::Forward ? ring().RedoStepForward() : ring().UndoStepBack();
    const QString record = slot ? ring().FetchUndoSnapshot(*slot) : QString();
    if (record.isEmpty())
        return false;
    UndoRecord state;
    try {
        state = splitUndoRecord(record);
    } catch (const Error &) {
        m_kept.keepUnreachable(ring(), joinedUndoRecord(record));
        throw;
    }
    show(state, colouredText(threadColouring(), state.text, false, editorSettings()));
    m_kept.afterStep(ring());
    return true;
}

bool EditorUndo::bringBackKeptText()
{
    beforeEdit(false);
    const UndoStore::Restoring restoring(ring());
    try {
        return showKept(m_kept.bringBack(ring(), shown()));
    } catch (const Error &) {
        return false; // damaged
    }
}

// Unlike a slot it is shown exactly as it was, without the spacing of colouring.
bool EditorUndo::showKept(const std::optional<UndoRecord> &kept)
{
    if (!kept)
        return false;
    show(*kept, finishedText(threadColouring(), kept->text, editorSettings()));
    m_idle.start(idleAfter);
    return true;
}

void EditorUndo::show(const UndoRecord &record, const ColouredText &text)
{
    m_box.setColoured(text);
    m_changed = now();
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
    m_kept.clear();
    ring().ResetUndoBase(m_box.Text());
    m_idle.start(idleAfter);
}

void EditorUndo::clearHistory()
{
    ring().ClearUndoHistory();
    m_kept.clear();
}

void EditorUndo::beforeEdit(bool losesPart)
{
    if (ring().IsRestoringUndo())
        return;
    const bool isToBeKept = hasStood() || (losesPart && !m_kept.isShownSafe(ring()));
    if (isToBeKept && m_box.TextLength() > 0)
        m_kept.offer(shown());
    else
        m_kept.withdraw();
}

bool EditorUndo::hasStood() const
{
    return now() - m_changed >= standsAfter;
}

void EditorUndo::noteEdit()
{
    if (ring().IsRestoringUndo())
        return;
    m_changed = now();
    if (m_kept.noteEdit(ring()))
        m_idle.start(idleAfter);
}

void EditorUndo::encodeWhenIdle()
{
    if (ring().encodePending() || m_kept.encodePending(UndoStore::sliceLength))
        m_idle.start(0ms);
}

} // namespace ORVTListview
