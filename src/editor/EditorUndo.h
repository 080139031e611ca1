#pragma once

#include "base/HostHistory.h"
#include "editor/EditorClock.h"
#include "editor/StateShowing.h"
#include "editor/rules/undo/KeptStates.h"
#include "editor/rules/undo/UndoStore.h"
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace ORVTListview {

class RichTextBox;

// One editor's use of the undo ring that all editors of its thread share, or of one of its
// own.
class EditorUndo : public QObject
{
    Q_OBJECT

public:
    using Way = KeptStates::Way;

    EditorUndo(RichTextBox &box, const EditorThread &thread);

    // An editor that is not ready takes no snapshots.
    void setReady(bool isReady) { m_isReady = isReady; }

    // Whether a text that is coloured as a whole keeps blanks, tabs and brackets.
    bool keepsText() const { return m_showing.keepsText(); }
    void setKeepsText(bool on) { m_showing.setKeepsText(on); }
    ColouredText coloured(const QString &text) const { return m_showing.coloured(text); }

    // Its steps begin with what is shown then. Without effect while a state is restored.
    bool hasOwnRing() const { return m_own != nullptr; }
    void setHasOwnRing(bool on);
    UndoStore &ring() const { return m_own ? *m_own : m_thread.ring; }

    // A character was typed, before it is inserted. A blank takes a snapshot when
    // something else was typed since the last one.
    void noteTyped(QStringView text);

    // Without effect while a state is being restored, while the editor is not
    // ready, and on an empty text.
    void PushUndoSnapshot();

    // Whether the ring's current slot has the text that is shown.
    bool isShownInRing() const;

    // Show the slot that the ring steps to. ErrMsg is left as it is when nothing
    // failed; on a failure text and selection stay. True when a state was shown.
    bool Undo(QString &ErrMsg) { return step(Way::Back, ErrMsg); }
    bool Redo(QString &ErrMsg) { return step(Way::Forward, ErrMsg); }

    // Whether the ring has a slot to step to. A ring of the editor's own gets what is not in
    // it yet before a step back.
    bool hasStep(Way way) const;

    // Whether there is something to show, in the ring or beside it.
    bool canUndo() const;
    bool canRedo() const;

    // What the user's Undo and Redo end in: the steps above, or the history of a host, which
    // has them, too. The editor may be gone afterwards.
    void setHistory(const std::optional<UndoHistory> &history) { m_host.set(history); }
    bool canUserUndo() const { return canUndo() || m_host.canUndo(); }
    bool canUserRedo() const { return canRedo() || m_host.canRedo(); }
    void stepForUser(Way way);

    // Shows again what stands in no slot, the latest first; false after the last.
    bool bringBackKeptText();

    // The editor shows another program.
    void resetBase();
    void forgetKeptTexts() { m_kept.clear(); }
    void clearHistory();
    void beginWithShown(); // nothing to undo, and the text shown as the base

    // The box was just given a text that was finished, or coloured, as a whole.
    void noteFinished(const QString &text) { m_showing.noteFinished(text); }
    void noteColoured(const QString &text);

    // Before and after the text is changed by anything but undo and redo. When it
    // loses a part at once, or has stood for a while, the state before is kept.
    void beforeEdit(bool losesPart);
    void noteEdit();

private:
    EditorClock::Time now() const;
    bool hasStood() const;
    void storeShown();
    bool isShownMissing() const;
    void endStepBefore(bool losesPart);
    void selectChange(const SharedText &former);
    bool step(Way way, QString &ErrMsg);
    bool stepInRing(Way way);
    std::optional<UndoState> stateAt(qint16 slot);
    bool showKept(const std::optional<UndoState> &kept);
    void show(const UndoState &state, Spelling spelling);
    UndoState shown() const;
    void encodeWhenIdle();

    RichTextBox &m_box;
    const EditorThread &m_thread;
    std::unique_ptr<UndoStore> m_own;
    KeptStates m_kept;
    HostHistory m_host;
    EditorClock::Time m_changed; // when the text was, last
    StateShowing m_showing;
    QTimer m_idle;
    bool m_isReady = false;
    bool m_isTypedSinceSnapshot = false;
    bool m_isEditedSinceStep = false; // or snapshot, by more than the blank that took it
    bool m_isBlankToCome = false;
    int m_editedLine = -1;
};

} // namespace ORVTListview
