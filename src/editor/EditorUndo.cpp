#include "editor/EditorUndo.h"

#include "base/MessageService.h"
#include "editor/rules/colouring/LineColouring.h"
#include "shared/texts/ToldFailure.h"
#include "widgets/box/BoxText.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/RichTextBox.h>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr auto idleAfter = 400ms; // since the last snapshot
constexpr auto standsAfter = 5s;  // since the last change

} // namespace

EditorUndo::EditorUndo(RichTextBox &box, const EditorThread &thread)
    : m_box(box)
    , m_thread(thread)
    , m_changed(now())
    , m_showing(box, thread)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &EditorUndo::encodeWhenIdle);
}

void EditorUndo::noteTyped(QStringView text)
{
    m_isBlankToCome = text == u" " && m_isTypedSinceSnapshot;
    if (m_isBlankToCome)
        PushUndoSnapshot();
    else if (text != u" ")
        m_isTypedSinceSnapshot = true;
}

void EditorUndo::PushUndoSnapshot()
{
    if (ring().IsRestoringUndo())
        return;
    m_isTypedSinceSnapshot = false;
    if (m_isReady && m_box.TextLength() > 0)
        storeShown();
}

void EditorUndo::storeShown()
{
    m_kept.beforeSnapshot(ring());
    ring().StoreUndoSnapshot(shown());
    m_kept.afterSnapshot(ring());
    m_isEditedSinceStep = false;
    m_idle.start(idleAfter);
}

bool EditorUndo::isShownInRing() const
{
    return ring().holdsText(ring().UndoCurrent(), shown().text);
}

// The thread's ring steps as hosts know it, from the slot it is at. In one of its own nobody
// counts the slots.
bool EditorUndo::isShownMissing() const
{
    return hasOwnRing() && m_isReady && m_isEditedSinceStep && !isShownInRing();
}

// A step takes back what was done in one place, and nothing else that is out of sight.
void EditorUndo::endStepBefore(bool losesPart)
{
    const int line = m_box.textCursor().blockNumber();
    if ((losesPart || line != m_editedLine) && isShownMissing())
        storeShown();
    m_editedLine = line;
}

bool EditorUndo::hasStep(Way way) const
{
    if (way == Way::Forward)
        return ring().CanRedo();
    return ring().CanUndo() || isShownMissing();
}

bool EditorUndo::canUndo() const
{
    return hasStep(Way::Back) || m_kept.canGo(Way::Back);
}

bool EditorUndo::canRedo() const
{
    return hasStep(Way::Forward) || m_kept.canGo(Way::Forward);
}

void EditorUndo::stepForUser(Way way)
{
    QString unheard;
    if (!m_host.isSet())
        step(way, unheard);
    else if (way == Way::Back)
        m_host.undo();
    else
        m_host.redo();
}

bool EditorUndo::step(Way way, QString &ErrMsg)
{
    const MessagesLater later(m_thread.messages); // of the text that is left
    const RichTextBox::Changing changing(m_box);
    beforeEdit(false);
    if (way == Way::Back && isShownMissing())
        storeShown();
    const UndoStore::Restoring restoring(ring());
    bool done = false;
    tellingFailure(ErrMsg, [&] {
        done = hasStep(way) ? stepInRing(way) : showKept(m_kept.go(ring(), shown(), way));
    });
    return done;
}

bool EditorUndo::stepInRing(Way way)
{
    m_kept.beforeStep(ring(), shown());
    m_idle.start(idleAfter);
    const std::optional<qint16> slot =
        way == Way::Forward ? ring().RedoStepForward() : ring().UndoStepBack();
    const std::optional<UndoState> state = slot ? stateAt(*slot) : std::nullopt;
    if (!state)
        return false;
    show(*state, Spelling::Listed);
    m_kept.afterStep(ring());
    m_isEditedSinceStep = false;
    return true;
}

// What a slot has selected may be where the next change was made.
void EditorUndo::selectChange(const SharedText &former)
{
    const auto changes = former.differences(shown().text);
    const qsizetype caret = m_box.SelStart();
    const auto hasCaret = [caret](const SharedText::Difference &change) {
        return change.otherStart <= caret && caret <= change.otherStart + change.otherLength;
    };
    if (changes.isEmpty() || std::any_of(changes.cbegin(), changes.cend(), hasCaret))
        return;
    const SharedText::Difference &first = changes.constFirst();
    m_box.setSelStart(static_cast<qint32>(first.otherStart + first.otherLength));
}

std::optional<UndoState> EditorUndo::stateAt(qint16 slot)
{
    try {
        return ring().FetchUndoState(slot);
    } catch (const Error &) {
        const QString record = ring().FetchUndoSnapshot(slot); // raises it when damaged
        m_kept.keepUnreachable(ring(), joinedUndoRecord(record));
        throw;
    }
}

bool EditorUndo::bringBackKeptText()
{
    const RichTextBox::Changing changing(m_box);
    beforeEdit(false);
    const UndoStore::Restoring restoring(ring());
    try {
        return showKept(m_kept.bringBack(ring(), shown()));
    } catch (const Error &) {
        return false; // damaged
    }
}

// Unlike a slot it is shown exactly as it was, without what colouring does to it.
bool EditorUndo::showKept(const std::optional<UndoState> &kept)
{
    if (!kept)
        return false;
    show(*kept, Spelling::AsTyped);
    m_idle.start(idleAfter);
    return true;
}

void EditorUndo::show(const UndoState &state, Spelling spelling)
{
    const KeptView view(m_box);
    const SharedText former = shown().text;
    m_showing.show(state.text, spelling);
    m_changed = now();
    m_box.setSelStart(state.selectionStart);
    m_box.setSelLength(state.selectionLength);
    if (hasOwnRing())
        selectChange(former);
}

void EditorUndo::noteColoured(const QString &text)
{
    m_showing.noteColoured(text);
    m_idle.start(idleAfter);
}

// What is shown is where its own ring begins, and the thread's where no program has yet.
void EditorUndo::setHasOwnRing(bool on)
{
    if (ring().IsRestoringUndo())
        return; // it is in use
    m_own = on ? std::make_unique<UndoStore>() : nullptr;
    m_kept.clear();
    if (on || ring().UndoSlots(0).isEmpty())
        resetBase();
}

UndoState EditorUndo::shown() const
{
    return {BoxText::of(*m_box.document()).sharedText(), m_box.SelStart(), m_box.SelLength()};
}

void EditorUndo::resetBase()
{
    m_kept.clear();
    m_isEditedSinceStep = false;
    ring().ResetUndoBase(m_box.Text());
    m_idle.start(idleAfter);
}

void EditorUndo::clearHistory()
{
    ring().ClearUndoHistory();
    m_kept.clear();
}

void EditorUndo::beginWithShown()
{
    clearHistory();
    resetBase();
}

void EditorUndo::beforeEdit(bool losesPart)
{
    if (ring().IsRestoringUndo())
        return;
    endStepBefore(losesPart);
    const bool isToBeKept = hasStood() || (losesPart && !m_kept.isShownSafe(ring()));
    if (isToBeKept && m_box.TextLength() > 0)
        m_kept.offer(shown());
    else
        m_kept.withdraw();
}

EditorClock::Time EditorUndo::now() const
{
    return m_thread.clock.now();
}

bool EditorUndo::hasStood() const
{
    return now() - m_changed >= standsAfter;
}

void EditorUndo::noteEdit()
{
    if (ring().IsRestoringUndo())
        return;
    if (!std::exchange(m_isBlankToCome, false))
        m_isEditedSinceStep = true;
    m_changed = now();
    if (m_kept.noteEdit(ring()))
        m_idle.start(idleAfter);
}

void EditorUndo::encodeWhenIdle()
{
    if (ring().encodePending() || m_kept.encodePending(UndoStore::sliceLength) ||
        m_showing.prepare())
        m_idle.start(0ms);
}

} // namespace ORVTListview
