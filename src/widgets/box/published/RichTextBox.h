#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QPointer>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>

#include <functional>
#include <memory>
#include <optional>

namespace ORVTListview {

class BoxCommands;
struct BoxParts;
struct ColouredText;
struct TextPiece;

// A box for plain and rich text, without word wrap and without an undo of its own.
//
// Text and positions: lines are joined by CR LF. Positions and lengths count
// UTF-16 units from 0, CR LF as two. A position or length outside the text counts
// as the nearest one inside, a negative one as 0; a position inside a surrogate
// pair or between CR and LF counts as the place before it. Text that goes in
// comes out the same, character for character, but for line ends (CR LF, CR, LF
// and U+2029 come out as CR LF) and NUL, which is dropped.
//
// Colours are as Colour.h says; -1 is automatic.
//
// Change is raised once for all that the user changes by one key or click, and for
// every change by a call, but not for colours and fonts; soon after what changes the
// document past the box. A receiver of an event may do anything, destroying the box
// included.
// Why it is so: docs/decisions/box.md.
class ORVT_EXPORT RichTextBox : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText NOTIFY Change)
    Q_PROPERTY(QString TextRTF READ TextRTF WRITE setTextRTF STORED false)
    Q_PROPERTY(qint32 SelStart READ SelStart WRITE setSelStart STORED false)
    Q_PROPERTY(qint32 SelLength READ SelLength WRITE setSelLength STORED false)
    Q_PROPERTY(QString SelText READ SelText WRITE setSelText STORED false)
    Q_PROPERTY(QString SelRTF READ SelRTF WRITE setSelRTF STORED false)
    Q_PROPERTY(qint32 SelColor READ SelColor WRITE setSelColor STORED false)
    Q_PROPERTY(qint32 BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QString FontName READ FontName WRITE setFontName)
    Q_PROPERTY(float FontSize READ FontSize WRITE setFontSize)
    Q_PROPERTY(bool FontBold READ FontBold WRITE setFontBold)
    Q_PROPERTY(bool FontItalic READ FontItalic WRITE setFontItalic)
    Q_PROPERTY(bool FontUnderline READ FontUnderline WRITE setFontUnderline)
    Q_PROPERTY(bool FontStrikethrough READ FontStrikethrough WRITE setFontStrikethrough)

public:
    // The option bits of Find.
    enum FindOption : qint32 {
        FindWholeWord = 2, // no letter or digit stands directly before or behind
        FindMatchCase = 4,
        FindNoHighlight = 8, // the match is not selected
    };
    Q_ENUM(FindOption)

    explicit RichTextBox(QWidget *parent = nullptr);
    ~RichTextBox() override;

    // The whole text. Setting it takes away every format and puts the caret at 0.
    QString Text() const;
    void setText(const QString &text);

    // The whole text as RTF. Text that does not begin with "{\rtf" is inserted as
    // plain text. Afterwards the caret stands behind the text. RTF may bring 512 fonts
    // into an empty box, each a name and a size; text in a further one gets the box's.
    QString TextRTF() const;
    void setTextRTF(const QString &rtf);

    // Where the selection begins, and how long it is. Setting the start leaves nothing
    // selected.
    qint32 SelStart() const;
    void setSelStart(qint32 position);
    qint32 SelLength() const;
    void setSelLength(qint32 length);

    // The selection. Setting it replaces the selection and puts the caret directly
    // behind what was inserted, with nothing selected. Plain text takes the format
    // at the caret; of a selection, that of its first character.
    QString SelText() const;
    void setSelText(const QString &text);
    QString SelRTF() const;
    void setSelRTF(const QString &rtf);

    // The colour of the selection's first character, of the next typed one when
    // nothing is selected; 0 for text without a colour of its own. Setting it with
    // nothing selected colours what is typed next.
    qint32 SelColor() const;
    void setSelColor(qint32 colour);

    // Text without a colour of its own is shown in the palette's text colour on a
    // system colour, else in black or white by contrast. Starts as 0x80000005.
    qint32 BackColor() const;
    void setBackColor(qint32 colour);

    // The font of all text that states none of its own. An empty name and a size
    // that is not positive change nothing. The size is in points.
    QString FontName() const;
    void setFontName(const QString &name);
    float FontSize() const;
    void setFontSize(float points);
    bool FontBold() const;
    void setFontBold(bool bold);
    bool FontItalic() const;
    void setFontItalic(bool italic);
    bool FontUnderline() const;
    void setFontUnderline(bool underline);
    bool FontStrikethrough() const;
    void setFontStrikethrough(bool strikethrough);

    // The line of a position, counted from 0.
    Q_INVOKABLE qint32 GetLineFromChar(qint32 Position) const;

    // The place of the first match that lies wholly between Start and End (End
    // itself excluded, -1 for the end of the text), or -1; then the selection
    // stays as it is. Options are FindOption bits. An empty text is never found; a
    // Start inside a pair moves forward.
    Q_INVOKABLE qint32 Find(const QString &Text, qint32 Start = 0, qint32 End = -1,
                            qint32 Options = 0);

    // What can be asked without reading the whole text. Lines count from 0; a line
    // outside the text counts as the nearest one.
    Q_INVOKABLE qint32 TextLength() const;
    qint32 lineCount() const;
    qint32 lineStart(qint32 line) const;
    QString lineText(qint32 line) const; // without its line end
    QString textRange(qint32 start, qint32 length) const;

    // Coloured text goes in directly, as one change, in the box's font.
    // setColoured puts the caret at 0, setSelColoured behind what was inserted.
    void setColoured(const ColouredText &text);
    void setSelColoured(const ColouredText &text);

    // The same for a text that comes in parts, each of whole lines, without the line end
    // behind its last one; none after the last part. Line ends are CR LF, and there is no
    // NUL. All that the box had goes before the first is asked for; a failure leaves it empty.
    using NextPart = std::function<std::optional<ColouredText>()>;
    void setColoured(const NextPart &next);

    // Puts a text, or each piece its own, in the place of pieces of the text, which
    // follow each other without overlapping. All of it is one change, and so is what
    // `finish` recolours. Plain text takes the format of the first character that it
    // replaces. The caret ends behind the last text; without pieces nothing happens.
    void replacePieces(const QList<TextPiece> &pieces, const QString &text);
    void replacePieces(const QList<TextPiece> &pieces, const QList<ColouredText> &texts,
                       const std::function<void()> &finish = {});

    // Gives the text from start on the colours and the letter case of `text`,
    // which is as long as the text it covers. Caret, selection and scroll position
    // stay, Change is not raised, and what is right already is not touched. Line
    // ends, and characters that differ in more than their case, stay as they are.
    void recolour(qint32 start, const ColouredText &text);

    // The text and its colours. A line end belongs to the run before it.
    ColouredText coloured(qint32 start, qint32 length) const;

    // While an input method composes; the text does not hold what it composes.
    bool isComposing() const;

    // While the document changes in colours and in what an input method composes,
    // but not in its text.
    bool keepsText() const;

    // While one lives, Change waits; it then comes once for all that was changed. The
    // box may be gone afterwards.
    class ORVT_EXPORT Changing
    {
    public:
        explicit Changing(RichTextBox &box);
        ~Changing();
        Q_DISABLE_COPY_MOVE(Changing) // one begin, one end

    private:
        QPointer<RichTextBox> m_box;
    };

    // What keys, shortcuts, context menu, drag and drop, middle click and input
    // method end in. The box owns it; it is a plain editor at first and never null.
    BoxCommands &commands() const;
    void setCommands(std::unique_ptr<BoxCommands> commands);

    // For the commands: the selection goes, or without one what lies between the caret
    // and the next or previous character or word.
    void removeBeside(QTextCursor::MoveOperation step);

    // The text between a cursor's two ends.
    QString textOf(const QTextCursor &selection) const;

    // Moves the focus in the window's tab order.
    void moveFocus(bool forwards);

Q_SIGNALS:
    // The text is another one now.
    void Change();

    // Raised before the box acts on a key. KeyCode is a virtual-key number; set to
    // 0 it swallows the key. Shift holds 1 for Shift, 2 for Ctrl, 4 for Alt.
    void KeyDown(qint16 &KeyCode, qint16 Shift);

    // Raised before the box acts on a press. Button is 1 left, 2 right, 4 middle; X
    // and Y are twips from the box's corner.
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);

    // For the control around the box: the text has just changed. The box cannot bear
    // to be destroyed here.
    void edited();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;

private:
    // The toolkit's own ways in, which know nothing of the rules above.
    using QPlainTextEdit::appendHtml;
    using QPlainTextEdit::appendPlainText;
    using QPlainTextEdit::copy;
    using QPlainTextEdit::createStandardContextMenu;
    using QPlainTextEdit::cut;
    using QPlainTextEdit::insertPlainText;
    using QPlainTextEdit::paste;
    using QPlainTextEdit::redo;
    using QPlainTextEdit::setDocument;
    using QPlainTextEdit::setPlainText;
    using QPlainTextEdit::setUndoRedoEnabled;
    using QPlainTextEdit::toPlainText;
    using QPlainTextEdit::undo;

    using PutPiece = std::function<void(QTextCursor &cursor, qsizetype index)>;

    void select(int anchor, int position);
    QPalette paletteAround() const;
    void applyBackColor();
    void noteTextChange();
    void noteChange();
    void raiseQueuedChange();
    bool handle(QEvent *event);
    bool paintLayers(QPaintEvent &event);
    void replaceAll(const std::function<void()> &insert);
    void replaceEach(const QList<TextPiece> &pieces, const PutPiece &put,
                     const std::function<void()> &finish = {});
    bool runShortcut(const QKeyEvent &event);
    void act(QKeyEvent *event);
    void removeStep(QTextCursor &cursor, QTextCursor::MoveOperation step) const;
    void keepCaretWhole();
    void compose(QInputMethodEvent *event);
    void selectReplaced(const QInputMethodEvent &event);
    void commit(const QInputMethodEvent &event);
    void startDrag(const QMouseEvent &event);

    std::unique_ptr<BoxParts> d;
};

} // namespace ORVTListview
