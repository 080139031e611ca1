#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/InputComponent.h>
#include <ORVTListview/Types.h>

#include <memory>

namespace ORVTListview {

class CodeView;
class ColumnHeader;
class ColumnHeaders;
class ImageList;
class ListItem;
class ListItems;
class PropertyBag;
class ReportList;
class RichTextBox;
struct ListViewFaces;

// One control with two faces, chosen by its type: for dsCode an editor for
// controller programs, for every other type a table of the controller's points.
// Above either stand a caption, a button with which users ask for values, and a
// picture that tells whether the control is busy.
//
// The editor's vocabulary, appearance and undo history are shared by all controls
// of a user-interface thread. Members raise Error and nothing else. A receiver of
// an event may do anything, destroying the control included.
//
// Rows and columns count from 1, lengths and places are twips.
class ORVT_EXPORT ORVListView : public InputComponent
{
    Q_OBJECT
    // The type comes first, as forms set properties in this order and a type brings
    // its own caption.
    Q_PROPERTY(ORVTListview::LwType ListviewType READ ListviewType WRITE setListviewType NOTIFY
                   listviewTypeChanged)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption NOTIFY captionChanged)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool MultiSelect READ MultiSelect WRITE setMultiSelect NOTIFY multiSelectChanged)
    Q_PROPERTY(
        QString columnLayout READ columnLayout WRITE setColumnLayout NOTIFY columnLayoutChanged)
    Q_PROPERTY(QString programColours READ programColours WRITE setProgramColours NOTIFY
                   programColoursChanged)

    Q_PROPERTY(ORVTListview::LwType CurrentType READ CurrentType NOTIFY listviewTypeChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString Key READ Key NOTIFY listviewTypeChanged DESIGNABLE false STORED false)
    Q_PROPERTY(qint16 NumberItems READ NumberItems WRITE setNumberItems NOTIFY numberItemsChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(bool IsHOASupported READ IsHOASupported WRITE setIsHOASupported NOTIFY
                   isHOASupportedChanged DESIGNABLE false STORED false)
    Q_PROPERTY(qint16 labelColumn READ labelColumn WRITE setLabelColumn NOTIFY labelColumnChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString indentUnit READ indentUnit WRITE setIndentUnit NOTIFY indentUnitChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString CodeText READ CodeText WRITE setCodeText NOTIFY codeTextChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString CodeTextRTF READ CodeTextRTF WRITE setCodeTextRTF NOTIFY codeTextRTFChanged
                   DESIGNABLE false STORED false)

    // The widget's own "enabled" in a form means the same, and comes after the type.
    Q_PROPERTY(bool enabled READ Enabled WRITE setEnabled NOTIFY enabledChanged)

public:
    explicit ORVListView(QWidget *parent = nullptr);
    ~ORVListView() override;

    const MemberTable &Members() const override;

    // The type shown; dsInput at first. Assigning it shows its face, an editor always
    // enabled, and builds everything anew: the caption with the type's name, the
    // columns, and numbered empty rows, whose number is the type's own and becomes
    // NumberItems. The table begins at its first row and column, as whenever all rows
    // are replaced.
    // A value outside 0 to 12 is ignored. Assigning dsCode also takes SQRT out of
    // the editor's function words until IsSqrtSupported is set again.
    LwType ListviewType() const;
    void setListviewType(ORVTListview::LwType type);

    // The same.
    LwType CurrentType() const;

    // The untranslated display name of the current type.
    QString Key() const;

    // The text above the table; empty at first. A change of type and
    // ReInitializeStrings replace it by the type's name.
    QString Caption() const;
    void setCaption(const QString &Text);

    // Enables or disables table, editor, caption, button and status picture together,
    // but not the control itself: this is not QWidget's setEnabled, which it hides.
    // A later change to dsCode enables the editor again.
    bool Enabled() const;
    void setEnabled(bool Enabled);

    // Whether several rows of the table can be selected.
    bool MultiSelect() const;
    void setMultiSelect(bool MultiSelect);

    // Caption, Enabled, ListviewType and MultiSelect in the host's keeping, under these
    // names. Reading applies the type in full, so that the caption shows its name; a
    // value that is no type counts as dsInput.
    void ReadProperties(const ORVTListview::PropertyBag &Bag);
    void WriteProperties(ORVTListview::PropertyBag &Bag) const;

    // Texts in the language of the thread. ReInitializeStrings takes a changed language
    // from the text provider; captions and headers change in place and rows stay. A column
    // too narrow for its new header grows.
    Q_INVOKABLE void InitStrings();
    Q_INVOKABLE void ReInitializeStrings();

    // --- The point table ---

    // The column that users edit in place, with the events of label editing: 0, the
    // number, at first. 1 makes the names of points editable. In a table without such a
    // column it is 0.
    qint16 labelColumn() const;
    void setLabelColumn(qint16 Index);

    // How many rows a change of type creates. Setting it builds the current type anew;
    // a negative count is kept, and counts as 0.
    qint16 NumberItems() const;
    void setNumberItems(qint16 Count);

    // Creates the numbered rows anew if there are not New_Count of them (below 0: none).
    // NumberItems stays. In code mode nothing happens.
    Q_INVOKABLE void ChangeListviewNumber(qint16 New_Count);

    // Whether outputs have the two columns of the hardware override. Counts from the
    // next change of type or NumberItems on.
    bool IsHOASupported() const;
    void setIsHOASupported(bool Supported);

    // While set, a change of type leaves the rows as they are, for the host to fill.
    Q_INVOKABLE void setIsWait(bool Wait);

    // The status picture: red while Busy, else green, as after each change of type.
    Q_INVOKABLE void SetImage(bool Busy);

    // The columns; their keys are the English headers. (The name is published so.)
    Q_INVOKABLE ORVTListview::ColumnHeaders *ColumnHerders() const;

    // The rows. A change of type removes them all.
    Q_INVOKABLE ORVTListview::ListItems *ListItems() const;

    // As ListItems()->Add: a row before the one at Index, or at the end for 0. A key in
    // use raises Error (InvalidCall), an index beyond the end (SubscriptOutOfRange).
    Q_INVOKABLE ORVTListview::ListItem *Add(qint32 Index = 0, const QString &Key = QString(),
                                            const QString &Text = QString());

    // Gives sub-item SubIndex of every row this text and tag; 1 is the column after "#".
    // Selection and scroll position stay. An index outside the columns changes nothing.
    Q_INVOKABLE void UpdateSubItems(const QString &Value, const QString &TagValue, qint16 SubIndex);

    // The first row from Index on where a text is sz (fPartial 0) or begins with it (1),
    // letter case ignored; null if there is none. Where: 0 the row's own text, 1 any of
    // its sub-items, 2 its tag. Others raise Error (InvalidCall).
    Q_INVOKABLE ORVTListview::ListItem *FindItem(const QString &sz, qint32 Where = 0,
                                                 qint32 Index = 1, qint32 fPartial = 0) const;

    // The row at the top; null for an empty table.
    Q_INVOKABLE ORVTListview::ListItem *GetFirstVisible() const;

    // The row at a place of the table (of ListView1, not of the control); null beside
    // the rows.
    Q_INVOKABLE ORVTListview::ListItem *HitTest(float X, float Y) const;

    // The row that is selected and has the focus, else the first selected, else null.
    // Setting it selects that row alone, or none. A row of another table raises Error
    // (InvalidCall), a removed one (ObjectNotSet).
    Q_INVOKABLE ORVTListview::ListItem *SelectedItem() const;
    Q_INVOKABLE void setSelectedItem(ORVTListview::ListItem *Item);

    // How the columns of the current type are arranged, for forms: the text that
    // ListGrid::columnLayout has for Key, such as "Label:1440;Mode:-720" in twips, a hidden
    // column below zero. Empty at first and in code mode, where it cannot be set. An empty
    // one gives the columns back their own order and width.
    QString columnLayout() const;
    void setColumnLayout(const QString &layout);

    // Makes every column as wide as its header and cells need, and the last one at least
    // as wide as the rest of the table. On a failure ErrMsg receives its description.
    Q_INVOKABLE void UpdateListViewWidth(QString &ErrMsg);

    // The width of a column, here counted from 0, as a whole number (a half goes to the
    // even one); 0 for an index outside the columns.
    Q_INVOKABLE qint32 GetSubItemWidth(qint16 Index) const;

    // Edits the selected row's text in place; not in a disabled control.
    Q_INVOKABLE void StartLabelEdit();

    // Paints the table at once.
    Q_INVOKABLE void Refresh();

    // 1 starts a drag of the selected rows if a mouse button is down, 2 calls it off;
    // anything else does nothing.
    Q_INVOKABLE void Drag(ORVTListview::ActionIndex Action = ORVTListview::ActionIndex{});

    // Removes all rows; in code mode empties the editor and leaves the list alone.
    Q_INVOKABLE void Clear();

    // The table's list itself, owned by this control, for what the members above do not
    // offer: check boxes, drags by the user, drops. In code mode it is the list of known
    // words, in a manner of its own; the table gets back what was set on it.
    Q_INVOKABLE ORVTListview::ReportList *listView() const;

    QSize sizeHint() const override;

    // --- The code editor ---

    // Applies the appearance to this editor and to all later colouring on this
    // thread, refills the word index, and colours the text again. To be called
    // once the editor is shown in code mode and whenever the settings change.
    Q_INVOKABLE void Init_RichTextBox(const ORVTListview::RichTextSettings &Setting);

    // The nine colours of the appearance, for forms: "BackColor:#ffffff;VariableColor:#0060d0;...",
    // each under the name of its field in RichTextSettings. Setting them does what
    // Init_RichTextBox does with these and the font that is there, in a table once it becomes
    // an editor. Empty at first, and then no colours are set; a text that lacks one of them
    // is ignored. What Init_RichTextBox is given does not change this text.
    QString programColours() const;
    void setProgramColours(const QString &colours);

    // Opens a program: shows it from its top, the caret at 0, every word in its colour
    // and its listed letter case, as if its lines had been typed; no blank, tab or
    // bracket comes or goes, and no character is reserved. CR LF, CR and LF are line
    // ends. The history begins with it, for all editors of the thread: undo ends there
    // and reaches nothing before. Until the words are known, which Init_RichTextBox sees
    // to, the program is shown without colours. The type stays.
    Q_INVOKABLE void openProgram(const QString &Text);

    // The program as plain text, lines separated by CR LF. Setting it shows it
    // without colours, accepts CR LF, CR and LF as line ends, puts the caret at 0, and
    // replaces the oldest state of the ring only. To open a program: openProgram.
    QString CodeText() const;
    void setCodeText(const QString &Text);

    // The program as RTF. Reading selects the whole text. Setting replaces it and
    // leaves the caret behind it; a text that does not begin with "{\rtf" is taken
    // as plain text. What undo goes back to stays as it was.
    QString CodeTextRTF();
    void setCodeTextRTF(const QString &Rtf);

    // The coloured RTF document of a program. Listed words take their listed
    // spelling, and brackets one blank towards their neighbours. The text is not
    // escaped: "\", "{" and "}" keep their meaning in RTF. Before the first
    // Init_RichTextBox on this thread the document has no head.
    Q_INVOKABLE QString GetColorText(const QString &Text);

    // Shows or hides the editor's box, and enables or disables it. A disabled box takes no
    // key and no click. (The name is published so.)
    Q_INVOKABLE void setRichTextVisible(bool Visible);
    Q_INVOKABLE void setRichTexteNable(bool Enable);

    // "true", "false" or a number: whether SQRT is a function word. Raises Error
    // (TypeMismatch) for any other text. Counts for the whole thread.
    Q_INVOKABLE void setIsSqrtSupported(const QString &Value);

    // The editor's box, owned by this control.
    Q_INVOKABLE ORVTListview::RichTextBox *RTextBox() const;

    // What the editor shows beside the colours of its words, such as line numbers; owned
    // by this control. All of it is off at first.
    Q_INVOKABLE ORVTListview::CodeView *codeView() const;

    // --- Known words ---

    // Rebuilds the index of known words from the vocabulary, and in code mode the
    // pop-up list. Text already shown keeps its colours. After it both follow the
    // changes of PointLists by themselves. Raises Error and keeps the index when a
    // collection of the host fails.
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
    // 1-based start, Color its colour: that of its class, 0 for none,
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

    // Whether the ring has a state before or behind this one.
    Q_INVOKABLE bool IsUndoAvailable() const;
    Q_INVOKABLE bool IsRedoAvailable() const;

    // Beside the ring the editor keeps what no snapshot holds: what Undo and Redo took
    // away, what a selection was typed over in, a text that stood for five seconds
    // before it was changed, snapshots dropped after an Undo. This brings the latest of
    // them back, called again the one before; false after the last, and then it begins
    // anew. A text lasts for 49 snapshots, until another program is set or the history
    // is cleared. Undo and Redo do the same where the ring ends, though
    // IsUndoAvailable and IsRedoAvailable speak of the ring alone.
    Q_INVOKABLE bool restoreUnsavedText();

    // Empties the ring, for all editors of the thread, as openProgram does. To be called
    // when another program is set by setCodeText, which replaces the oldest state only.
    Q_INVOKABLE void ClearUndoHistory();

    // --- Clipboard ---

    // Cut, copy, or select all of the program. None of these takes a snapshot; the keys Ctrl+X
    // and Ctrl+V do.
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

Q_SIGNALS:
    // The events, with those of InputComponent. What is taken by reference and changed
    // comes back to the table. From the code editor KeyDown tells of F1 only; keys and
    // drags are the table's else. By number: 1 AfterLabelEdit, 2 BeforeLabelEdit, 3 Click,
    // 4 ColumnClick, 5 DblClick, 6 ItemCheck, 7 ItemClick, 8 KeyDown, 9 KeyPress, 10 KeyUp,
    // 11 MouseDown, 12 MouseMove, 13 MouseUp, 14 OLECompleteDrag, 15 OLEDragDrop,
    // 16 OLEDragOver, 17 OLEGiveFeedback, 18 OLESetData, 19 OLEStartDrag, 20 QueryRead,
    // 21 QueryReload, 22 QuerySetWord, 23 StatusUpdate, 24 UpdateUndoMenu,
    // 25 UpdateWordList, 26 QueryAnalyze, 27 QueryCompile.

    // A label was edited. Cancel other than 0 drops NewString.
    void AfterLabelEdit(qint16 &Cancel, QString &NewString);

    // A label is about to be edited. Cancel other than 0 keeps the field from opening.
    void BeforeLabelEdit(qint16 &Cancel);

    // The left button was pressed and released in the table.
    void Click();

    // The head of a column was clicked.
    void ColumnClick(ORVTListview::ColumnHeader *ColumnHeader);

    // The left button was pressed twice in the table.
    void DblClick();

    // The user has checked or unchecked a row.
    void ItemCheck(ORVTListview::ListItem *Item);

    // A row was pressed with the left or right button, or reached by keyboard.
    void ItemClick(ORVTListview::ListItem *Item);

    // X and Y are twips from the corner of the table or the editor. Button: 1 left,
    // 2 right, 4 middle; MouseMove tells the sum of those held. Only the press comes
    // from the editor too.
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void MouseMove(qint16 Button, qint16 Shift, float X, float Y);
    void MouseUp(qint16 Button, qint16 Shift, float X, float Y);

    // The user wants the values of this type from the controller: the read button was
    // pressed and let go.
    void QueryRead(ORVTListview::LwType &TypeIndex);

    // Published; never raised.
    void QueryReload(ORVTListview::LwType &TypeIndex);
    void QuerySetWord(QString &WordText);

    // The caret's position as text, half a second after the last key in the editor.
    void StatusUpdate(QString &Description);

    // A paste has just taken a snapshot.
    void UpdateUndoMenu();

    // Published; never raised.
    void UpdateWordList(ORVTListview::LwType &TypeIndex);

    // F6 in the editor.
    void QueryAnalyze();

    // Ctrl+F6 in the editor.
    void QueryCompile();

    // Not events: a property has another value now, whoever changed it. What changes
    // without a call of the program is told soon after.
    void captionChanged();
    void enabledChanged();
    void listviewTypeChanged();
    void multiSelectChanged();
    void numberItemsChanged();
    void isHOASupportedChanged();
    void labelColumnChanged();
    void indentUnitChanged();
    void columnLayoutChanged();
    void programColoursChanged();
    void codeTextChanged();

    // Its text, or only its colours.
    void codeTextRTFChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;

private:
    void connectEvents();
    void connectListEvents();
    void connectListKeys();
    void connectListDrags();
    void connectProperties();
    void tellCode();
    void tellCodeSoon();

    std::unique_ptr<ListViewFaces> d;
};

} // namespace ORVTListview
