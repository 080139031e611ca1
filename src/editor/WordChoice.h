#pragma once

#include "editor/PopupWordList.h"

namespace ORVTListview {

class EditorUndo;
class TypedColouring;

// The known words: shows them beside the caret and takes the chosen one.
class WordChoice
{
public:
    WordChoice(ReportList &list, RichTextBox &box, const EditorThread &thread, EditorUndo &undo,
               TypedColouring &colouring);

    PopupWordList &popup() { return m_popup; }

    void RefillListviewWithWordList();
    void UpdateWordListItem(const QString &OldName, const QString &NewName, qint32 TypeIndex);
    void TryToPopupList(bool IsShowAbsolutely);

private:
    bool rewriteKnownWord();
    void caretToLineEnd();
    void useWord(const QString &word, qint32 colour);

    RichTextBox &m_box;
    const EditorThread &m_thread;
    EditorUndo &m_undo;
    TypedColouring &m_colouring;
    PopupWordList m_popup;
};

} // namespace ORVTListview
