#pragma once

#include "editor/rules/undo/KeptState.h"
#include "editor/rules/undo/UndoStore.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace ORVTListview {

class RichTextBox;
struct ColouredText;

// One editor's use of the undo ring that all editors of its thread share.
class EditorUndo : public QObject
{
    Q_OBJECT

public:
    explicit EditorUndo(RichTextBox &box);

    bool IsTypedSinceSnapshot() const { return m_isTypedSinceSnapshot; }

    // A character was typed, before it is inserted. A blank takes a snapshot when
    // something else was typed since the last one.
    void noteTyped(QStringView text, bool isReady);

    // Without effect while a state is being restored, while the editor is not
    // ready, and on an empty text.
    void PushUndoSnapshot(bool isReady);

    // Show the slot that the ring steps to. ErrMsg is left as it is when nothing
    // failed; on a failure text and selection stay. True when a state was shown.
    bool Undo(QString &ErrMsg) { return step(false, ErrMsg); }
    bool Redo(QString &ErrMsg) { return step(true, ErrMsg); }

    // Shows again what the last undo or redo took away and no slot holds; false
    // when there is nothing of the kind.
    bool bringBackKeptText();
    bool canBringBackKeptText() const { return m_kept.canBringBack(); }

    void resetBase();
    void clearHistory();

    // The text was changed by anything but undo and redo.
    void noteEdit();

private:
    bool step(bool forwards, QString &ErrMsg);
    void show(const UndoRecord &record, const ColouredText &text);
    UndoRecord shown() const;
    void encodeWhenIdle();

    RichTextBox &m_box;
    KeptState m_kept;
    QTimer m_idle;
    bool m_isTypedSinceSnapshot = false;
};

} // namespace ORVTListview
