#include "editor/WordChoice.h"

#include "base/ColouredText.h"
#include "base/TextRules.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/OpenWordList.h"
#include "editor/TypedColouring.h"
#include "editor/WordInBox.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

WordChoice::WordChoice(ReportList &list, RichTextBox &box, const EditorThread &thread,
                       EditorUndo &undo, TypedColouring &colouring)
    : m_box(box)
    , m_thread(thread)
    , m_undo(undo)
    , m_colouring(colouring)
    , m_popup(list, box, thread)
{
    QObject::connect(&m_popup, &PopupWordList::picked, &m_popup,
                     [this](const QString &word, qint32 colour) { useWord(word, colour); });
}

void WordChoice::RefillListviewWithWordList()
{
    m_thread.words.FillCodeWordList(m_thread.vocabulary);
    m_popup.refill();
}

void WordChoice::UpdateWordListItem(const QString &OldName, const QString &NewName,
                                    qint32 TypeIndex)
{
    m_thread.knownWords().UpdateWordListItem(OldName, NewName, TypeIndex);
    m_popup.refill();
}

void WordChoice::TryToPopupList(bool IsShowAbsolutely)
{
    if (PopupWordList *open = m_thread.openList.list) {
        open->shut();
        return;
    }
    if (IsCommentLine(m_box.lineText(m_box.GetLineFromChar(m_box.SelStart())))) {
        caretToLineEnd();
        return;
    }
    m_popup.catchUp();
    if (IsShowAbsolutely || !rewriteKnownWord())
        m_popup.open();
    else
        m_box.setFocus();
}

// A word that needs no list takes its colour as it is typed.
bool WordChoice::rewriteKnownWord()
{
    const QString word = GetWordAtCaret(m_box).Word;
    qint32 colour = ColouredText::automatic; // a number has none of its own
    if (word.isEmpty())
        return false;
    if (!isNumeric(word)) {
        const qsizetype place = m_popup.words().find(word);
        if (!m_thread.knownWords().FindInWordList(word, true) || place < 0)
            return false;
        colour = m_popup.words().words()[place].style.Colour;
    }
    SetWordAtCaret(m_box, word, colour);
    m_colouring.leaveUnfinished();
    return true;
}

void WordChoice::caretToLineEnd()
{
    const qint32 line = m_box.GetLineFromChar(m_box.SelStart());
    m_box.setSelStart(m_box.lineStart(line) + static_cast<qint32>(m_box.lineText(line).size()));
}

void WordChoice::useWord(const QString &word, qint32 colour)
{
    if (!mayUserEdit(m_box))
        return;
    const RichTextBox::Changing changing(m_box);
    m_undo.PushUndoSnapshot();
    m_box.setSelStart(m_box.SelStart()); // the word's line, of those selected
    m_colouring.leaveUnfinished();
    m_colouring.edit([&] { SetWordAtCaret(m_box, word, colour); });
    m_box.setFocus();
}

} // namespace ORVTListview
