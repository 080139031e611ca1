#pragma once

#include "base/ColouredText.h"
#include "editor/CheckedPaste.h"
#include "editor/EditorKeys.h"
#include "editor/EditorUndo.h"
#include "editor/LineCommands.h"
#include "editor/PopupWordList.h"
#include "editor/StatusTimer.h"
#include "editor/TypedColouring.h"
#include "widgets/box/BoxCommands.h"
#include "widgets/input/TabStops.h"
#include <ORVTListview/Types.h>

#include <ORVTListview/Export.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QWidget;

namespace ORVTListview {

class ReportList;
class RichTextBox;
struct TextPiece;

// The code face: a rich-text box that holds a controller program and shows every
// word in the colour of its class. It owns the rules, its host widget the box.
class ORVT_EXPORT CodeEditor : public QObject
{
    Q_OBJECT

public:
    // Makes the box, named RichTextBox1, as a child of the host widget. The list
    // serves as pop-up word list while it is taken.
    CodeEditor(QWidget *host, ReportList &list);
    ~CodeEditor() override;

    RichTextBox &box() const { return *m_box; }
    LineCommands &lines() { return m_lines; }

    // Applies the appearance to the box and to all later colouring of the thread,
    // and colours the text again.
    void Init_RichTextBox(const RichTextSettings &Setting);
    bool IsEditorReady() const { return m_isReady; }

    QString CodeText() const;
    void setCodeText(const QString &text);

    // Reading selects the whole text.
    QString CodeTextRTF();
    void setCodeTextRTF(const QString &rtf);

    QString GetColorText(const QString &Text) const;
    void Clear();

    // What the host binds to its menus; no snapshots but undo's own.
    void RTextCut();
    void RTextCopy();
    void RTextPaste(const QString &Data);
    void RTextSelectAll();
    void Undo(QString &ErrMsg);
    void Redo(QString &ErrMsg);
    bool bringBackKeptText();
    bool canUndo() const { return m_undo.canUndo(); }
    bool canRedo() const { return m_undo.canRedo(); }
    void clearUndoHistory() { m_undo.clearHistory(); }

    // Puts a text in the place of pieces of the program, after a snapshot. Pieces as
    // for RichTextBox::replacePieces.
    enum class Replacing { InColours, InTheColoursThere };
    void replace(const QList<TextPiece> &pieces, const QString &text, Replacing how);

    QString GetPositionDisplay() const;
    QString GetWholeWord(qint32 StartIndex, qint32 &WordStartIndex, qint32 &Color) const;
    void HighLightText(const QString &Text, qint16 LineNumber);

    // What keys, menus and the mouse end in: the same with their snapshots.
    KeyDecision decideKey(qint16 keyCode, qint16 shift) const
    {
        return m_keys.decide(keyCode, shift);
    }
    void typeText(const QString &text);
    void breakLine();
    void indentLines();
    void unindentLines();
    bool deleteBlankBeforeCaret();
    bool unindentBeforeCaret();
    void cutByKey();
    void removeSelection();
    void edit(const std::function<void()> &change) { m_colouring.edit(change); }
    void pasteClipboard();
    Pasted pasteFromOutside(const QString &data);
    void noteChangeAhead(bool losesPart) { m_undo.beforeEdit(losesPart); }
    void finishCaretLine() { m_colouring.finishCaretLine(); }
    void PushUndoSnapshot() { m_undo.PushUndoSnapshot(m_isReady); }
    void rearmStatusTimer() { m_status->rearm(); }

    void takeList() { m_popup.takeList(); }
    void giveListBack() { m_popup.giveListBack(); }
    void RefillListviewWithWordList();
    void UpdateWordListItem(const QString &OldName, const QString &NewName, qint32 TypeIndex);
    void TryToPopupList(bool IsShowAbsolutely);
    bool isWordListShown() const { return m_popup.isShown(); }
    bool wordListKey(qint16 keyCode) { return m_popup.key(keyCode); }

    // While the editor has the focus, Tab is typed: the controls of the form are
    // no tab stops. Null stands for the editor's window.
    void setForm(QWidget *form) { m_form = form; }
    void giveBackTabStops() { m_tabStops.giveBack(); }

Q_SIGNALS:
    void KeyDown(qint16 &KeyCode, qint16 &Shift);
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void UpdateUndoMenu();
    void QueryAnalyze();
    void QueryCompile();
    void StatusUpdate(QString &Description);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectBox();
    void applyAppearance(const RichTextSettings &setting);
    QString sampleRtf();
    ColouredText coloured(const QString &text) const;
    void changeIndent(const std::function<void()> &change);
    Pasted pasteChecked(const QString &data);
    void pastePlain(const ColouredText &text);
    void pasteRtf(const QString &rtf);
    void finishLines(qint32 first, qint32 last);
    void noteTextChange();
    void raiseStatus();
    void takeWord(const QString &word, qint32 colour);
    bool rewriteKnownWord();
    void caretToLineEnd();
    QWidget *form() const;
    void leaveFocus();

    QPointer<RichTextBox> m_box;
    LineCommands m_lines;
    TypedColouring m_colouring;
    EditorUndo m_undo;
    EditorKeys m_keys;
    StatusTimer *m_status;
    TabStops m_tabStops;
    PopupWordList m_popup;
    QPointer<QWidget> m_form;
    bool m_isReady = false;
};

} // namespace ORVTListview
