#pragma once

#include "widgets/box/BoxCommands.h"

#include <QtCore/QObject>

namespace ORVTListview {

class EditorUndo;
class RichTextBox;
class TypedColouring;
struct ColouredText;
struct EditorThread;

// What goes out of the program and comes into it as a whole text.
class ProgramClipboard : public QObject
{
    Q_OBJECT

public:
    ProgramClipboard(RichTextBox &box, const EditorThread &thread, EditorUndo &undo,
                     TypedColouring &colouring);

    // What the host binds to its menus; no snapshots.
    void RTextCut();
    void RTextCopy();
    Pasted RTextPaste(const QString &Data);

    // What keys, menus and the mouse end in, with snapshots.
    void cutByKey();
    void removeSelection();
    Pasted pasteClipboard();
    Pasted pasteFromOutside(const QString &data);

    // RTF as it is, plain text in its colours unless it is refused.
    Pasted pasteChecked(const QString &data);

Q_SIGNALS:
    void UpdateUndoMenu(); // a snapshot was taken

private:
    void takeSelectionOut();
    void pastePlain(const ColouredText &text);
    void pasteRtf(const QString &rtf);
    void finishLines(qint32 first, qint32 last);

    RichTextBox &m_box;
    const EditorThread &m_thread;
    EditorUndo &m_undo;
    TypedColouring &m_colouring;
};

} // namespace ORVTListview
