#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/Types.h>

#include <QtWidgets/QWidget>

#include <memory>

namespace ORVTListview {

class ImageList;
class RichTextBox;

// One control with two faces, chosen by its type: for dsCode an editor for
// controller programs, for every other type a table of the controller's points.
//
// The editor's vocabulary, appearance and undo history are shared by all controls
// of a user-interface thread. Members raise Error and nothing else.
class ORVT_EXPORT ORVListView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(ORVTListview::LwType ListviewType READ ListviewType WRITE setListviewType)
    Q_PROPERTY(ORVTListview::LwType CurrentType READ CurrentType)
    Q_PROPERTY(QString Key READ Key)
    Q_PROPERTY(QString indentUnit READ indentUnit WRITE setIndentUnit)
    Q_PROPERTY(QString CodeText READ CodeText WRITE setCodeText DESIGNABLE false STORED false)
    Q_PROPERTY(
        QString CodeTextRTF READ CodeTextRTF WRITE setCodeTextRTF DESIGNABLE false STORED false)

public:
    explicit ORVListView(QWidget *parent = nullptr);
    ~ORVListView() override;

    // The type shown; dsInput at first. A value outside 0 to 12 is ignored.
    // Assigning dsCode also takes SQRT out of the editor's function words until
    // IsSqrtSupported is set again.
    LwType ListviewType() const;
    void setListviewType(ORVTListview::LwType type);
    LwType CurrentType() const;

    // The untranslated display name of the current type.
    QString Key() const;

    // --- The code editor ---

    // Applies the appearance to this editor and to all later colouring on this
    // thread, refills the word index, and colours the text again. To be called
    // once the editor is shown in code mode and whenever the settings change.
    Q_INVOKABLE void Init_RichTextBox(const ORVTListview::RichTextSettings &Setting);

    // The program as plain text, lines separated by CR LF. Setting it shows it
    // without colours, accepts CR LF, CR and LF as line ends, and puts the caret
    // at 0. To show a program coloured: setCodeTextRTF(GetColorText(text)).
    QString CodeText() const;
    void setCodeText(const QString &Text);

    // The program as RTF. Reading selects the whole text. Setting replaces it and
    // leaves the caret behind it; a text that does not begin with "{\rtf" is taken
    // as plain text.
    QString CodeTextRTF();
    void setCodeTextRTF(const QString &Rtf);

    // The coloured RTF document of a program. Listed words take their listed
    // spelling, and brackets one blank towards their neighbours. The text is not
    // escaped: "\", "{" and "}" keep their meaning in RTF. Before the first
    // Init_RichTextBox on this thread the document has no head.
    Q_INVOKABLE QString GetColorText(const QString &Text);

    Q_INVOKABLE void setRichTextVisible(bool Visible);
    Q_INVOKABLE void setRichTexteNable(bool Enable);

    // "true", "false" or a number: whether SQRT is a function word. Raises Error
    // (TypeMismatch) for any other text. Counts for the whole thread.
    Q_INVOKABLE void setIsSqrtSupported(const QString &Value);

    // The editor's box, owned by this control.
    Q_INVOKABLE ORVTListview::RichTextBox *RTextBox() const;

    // --- Known words ---

    // Rebuilds the index of known words from the vocabulary, and in code mode the
    // pop-up list. Text already shown keeps its colours.
    Q_INVOKABLE void RefillListviewWithWordList();

    // Renames one word, or adds NewName when OldName is not known as a word of the
    // type. Only variables, constants, inputs, outputs and network variable inputs
    // have words; for other types, and for an empty NewName, nothing happens. The
    // host's collections are not touched.
    Q_INVOKABLE void UpdateWordListItem(const QString &OldName, const QString &NewName,
                                        ORVTListview::LwType TypeIndex);

    // Opens the list of known words at the caret, or closes it. A known word or a
    // number is only coloured, unless IsShowAbsolutely. On a comment line the caret
    // goes to the end of the line instead. In code mode only.
    Q_INVOKABLE void TryToPopupList(bool &IsShowAbsolutely);
    Q_INVOKABLE void TryToPopupList();

    // The word around the 0-based position StartIndex. WordStartIndex receives its
    // 1-based start, Color its colour 0x00BBGGRR: that of its class, 0 for none,
    // the comment colour on a comment line. The selection stays as it is.
    Q_INVOKABLE QString GetWholeWord(qint32 &StartIndex, qint32 &WordStartIndex, qint32 &Color);

    // The control's pictures, by key and by the indexes 61 to 71 of the word
    // classes. The control owns them.
    Q_INVOKABLE ORVTListview::ImageList *GetImage() const;

    // --- Undo ---

    // Step through the ring of snapshots that all editors of the thread share. In
    // code mode only. On a failure ErrMsg receives its description and the text
    // stays; else ErrMsg is left as it is.
    Q_INVOKABLE void Undo(QString &ErrMsg);
    Q_INVOKABLE void Redo(QString &ErrMsg);
    Q_INVOKABLE bool IsUndoAvailable() const;
    Q_INVOKABLE bool IsRedoAvailable() const;

    // Text typed since the last snapshot is in no snapshot. Undo and Redo keep it
    // beside the ring; this brings it back, until the next edit. False when there is
    // none. Redo does the same when no snapshot lies ahead.
    Q_INVOKABLE bool restoreUnsavedText();

    // Empties the ring, for all editors of the thread: to be called when another
    // program is opened, because setCodeText alone replaces the oldest state only.
    Q_INVOKABLE void ClearUndoHistory();

    // --- Clipboard ---

    // None of these takes a snapshot; the keys Ctrl+X and Ctrl+V do.
    Q_INVOKABLE void RTextCut();
    Q_INVOKABLE void RTextCopy();
    Q_INVOKABLE void RTextSelectAll();

    // Puts Data in place of the selection: RTF as it is, plain text in its colours.
    // A text with a "\" is refused with a message.
    Q_INVOKABLE void RTextPaste(QString &Data);

    // --- Find and replace ---

    // Show the find dialog on the editor, modally, and return once it is closed. In
    // code mode only. ErrMsg receives the description of a failure, else it stays.
    // The control may be destroyed meanwhile; the dialog then closes.
    Q_INVOKABLE void FindInRichtext(QString &ErrMsg);
    Q_INVOKABLE void ReplaceInRichtext(QString &ErrMsg);

    // The same dialog beside the editor: returns at once, and both can be used until
    // either is closed.
    Q_INVOKABLE void showFind(bool IsReplace = false);

    // Replaces a word wherever it stands between blanks, tabs, brackets and line
    // ends, whatever its letter case, on comment lines too. With IsChangeColor the
    // new text takes its colours, else those of what it replaces. Takes a snapshot
    // if there is anything to replace; an empty OldWord is nowhere. ErrMsg receives
    // the description of a failure, else it stays.
    Q_INVOKABLE void ReplaceRichTextBox(const QString &OldWord, const QString &NewWord,
                                        QString &ErrMsg, bool IsChangeColor = false);

    // --- Position ---

    // "Row: 3, Col: 7", both counted from 1.
    Q_INVOKABLE QString GetPositionDisplay() const;

    // Selects Text on the line, counted from 1, or the line when Text is not on it.
    // A line outside the program changes nothing.
    Q_INVOKABLE void HighLightText(QString &Text, qint16 &LineNumber);

    // The tool tip of the read button (IsLeftButton) or of the status picture.
    Q_INVOKABLE void ResetToolTipText(QString &Text, bool &IsLeftButton);

    // The forms that hold this control. While the editor has the focus, Tab is
    // typed, and no control of the code parent, else of the form parent, else of
    // the window is a tab stop; each gets back what it had when the focus leaves.
    // Ctrl+Tab and Ctrl+Shift+Tab move the focus. The code parent counts for all
    // editors of the thread. Forms are kept by reference and may go at any time.
    Q_INVOKABLE void SetCodeParent(QWidget *f);
    Q_INVOKABLE void setFormParent(QWidget *Form);

    // Blanks and tabs that Tab puts before each selected line; four blanks at
    // first. Another text is ignored.
    QString indentUnit() const;
    void setIndentUnit(const QString &unit);

    // In code mode empties the editor.
    Q_INVOKABLE void Clear();

Q_SIGNALS:
    // From the code editor: F1 only. KeyCode is a virtual-key number; set to 0 it
    // swallows the key. Shift: 1 Shift, 2 Ctrl, 4 Alt.
    void KeyDown(qint16 &KeyCode, qint16 &Shift);

    // X and Y are twips from the corner of the table or the editor. Button: 1 left,
    // 2 right, 4 middle.
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);

    // Published; never raised.
    void QuerySetWord(QString &WordText);
    void UpdateWordList(ORVTListview::LwType &TypeIndex);

    // The caret's position as text, half a second after the last key.
    void StatusUpdate(QString &Description);

    // A paste has just taken a snapshot.
    void UpdateUndoMenu();

    // F6 and Ctrl+F6 in the editor.
    void QueryAnalyze();
    void QueryCompile();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void switchToType(LwType type);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
