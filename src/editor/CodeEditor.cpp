#include "editor/CodeEditor.h"

#include "base/EventGuard.h"
#include "base/TextPiece.h"
#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "editor/CodeCommands.h"
#include "editor/CodeReplacing.h"
#include "editor/WordInBox.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/RtfHead.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "rtf/RtfReader.h"
#include "shared/points/HostForms.h"
#include "widgets/box/CaretPosition.h"
#include "widgets/input/MouseArguments.h"
#include "widgets/look/MessageBoxes.h"
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QScopeGuard>
#include <QtGui/QClipboard>
#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

bool hasMark(const QString &fontStyle, QStringView mark)
{
    return fontStyle.contains(mark, Qt::CaseInsensitive);
}

} // namespace

CodeEditor::CodeEditor(QWidget *host, ReportList &list)
    : QObject(host)
    , m_box(new RichTextBox(host))
    , m_lines(*m_box)
    , m_colouring(*m_box)
    , m_undo(*m_box)
    , m_keys(*this)
    , m_status(new StatusTimer(this))
    , m_popup(list, *m_box)
{
    MessageBoxes::installAsDefault();
    m_box->setObjectName(u"RichTextBox1"_s);
    m_box->setCommands(std::make_unique<CodeCommands>(*this));
    connectBox();
}

CodeEditor::~CodeEditor()
{
    if (m_box)
        m_box->setCommands(nullptr); // ours know the editor
}

void CodeEditor::connectBox()
{
    m_box->installEventFilter(this);
    connect(m_box, &RichTextBox::KeyDown, this,
            [this](qint16 &keyCode, qint16 shift) { m_keys.keyDown(keyCode, shift); });
    connect(m_box, &RichTextBox::MouseDown, this,
            [this](qint16 button, qint16 shift, float x, float y) {
                m_colouring.finishCaretLine();
                raiseEvent(*this, &CodeEditor::MouseDown, button, shift, x, y);
            });
    connect(m_box, &RichTextBox::edited, this, &CodeEditor::noteTextChange);
    connect(m_box, &RichTextBox::cursorPositionChanged, this, [this] {
        if (!threadPart<UndoStore>().IsRestoringUndo())
            m_colouring.followCaret();
        m_popup.follow();
    });
    connect(&m_popup, &PopupWordList::picked, this, &CodeEditor::takeWord);
    connect(m_status, &StatusTimer::quiet, this, &CodeEditor::raiseStatus);
}

void CodeEditor::Init_RichTextBox(const RichTextSettings &Setting)
{
    const UndoStore::Restoring sameText(threadPart<UndoStore>());
    auto &state = threadPart<EditorState>();
    const qint32 formerNvoColour = state.EditorSettings.nvoFPAColor;
    state.EditorSettings = Setting;
    state.EditorSettings.nvoFPAColor = formerNvoColour; // accepted, never used
    applyAppearance(Setting);
    state.LineHeight = m_box->fontMetrics().height();
    RefillListviewWithWordList();

    m_isReady = false;
    const RichTextBox::Changing changing(*m_box);
    const QString kept = m_box->Text();
    m_box->setUpdatesEnabled(false);
    const auto finish = qScopeGuard([this] {
        m_box->setSelStart(0);
        m_box->setUpdatesEnabled(true);
        m_isReady = true;
    });
    try {
        const Messages &messages = threadPart<Messages>();
        state.RtfHeader =
            BuildRtfHeader(sampleRtf(), state.EditorSettings, messages.service()).Header;
        m_box->setColoured(coloured(kept));
    } catch (const std::exception &) {
        m_box->setText(kept); // uncoloured is better than lost
    }
}

void CodeEditor::applyAppearance(const RichTextSettings &setting)
{
    m_box->setBackColor(setting.BackColor);
    m_box->setFontName(setting.FontName);
    m_box->setFontSize(setting.FontSize);
    m_box->setFontBold(hasMark(setting.FontStyle, u"b1"));
    m_box->setFontItalic(hasMark(setting.FontStyle, u"i1"));
    m_box->setFontUnderline(hasMark(setting.FontStyle, u"u1"));
}

// What the box writes for two lines in its font; leaves the box empty.
QString CodeEditor::sampleRtf()
{
    m_box->setText(QString());
    m_box->setSelText(u"#GetInfo#\r\n#Another word"_s);
    RTextSelectAll();
    const QString sample = m_box->SelRTF();
    m_box->setText(QString());
    return sample;
}

QString CodeEditor::CodeText() const
{
    return m_box->Text();
}

void CodeEditor::setCodeText(const QString &text)
{
    const RichTextBox::Changing changing(*m_box);
    m_box->setText(text);
    m_undo.resetBase();
}

QString CodeEditor::CodeTextRTF()
{
    RTextSelectAll();
    return m_box->SelRTF();
}

void CodeEditor::setCodeTextRTF(const QString &rtf)
{
    const RichTextBox::Changing changing(*m_box);
    m_box->setTextRTF(rtf);
    m_undo.forgetKeptTexts();
}

QString CodeEditor::GetColorText(const QString &Text) const
{
    return ColourText(threadColouring(), withCrLf(Text), threadPart<EditorState>().RtfHeader,
                      false);
}

ColouredText CodeEditor::coloured(const QString &text) const
{
    return colouredText(threadColouring(), text, false, threadPart<EditorState>().EditorSettings);
}

void CodeEditor::Clear()
{
    m_box->setText(QString());
}

void CodeEditor::RTextCut()
{
    RTextCopy();
    edit([this] { m_box->setSelText(QString()); });
}

void CodeEditor::RTextCopy()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    const QString selected = m_box->SelText();
    clipboard->clear();
    if (!selected.isEmpty())
        clipboard->setText(selected);
}

void CodeEditor::RTextPaste(const QString &Data)
{
    if (acceptPasteSize(Data))
        pasteChecked(Data);
}

void CodeEditor::RTextSelectAll()
{
    m_box->setSelStart(0);
    m_box->setSelLength(m_box->TextLength());
}

bool CodeEditor::bringBackKeptText()
{
    const RichTextBox::Changing changing(*m_box);
    return m_undo.bringBackKeptText();
}

void CodeEditor::Undo(QString &ErrMsg)
{
    const RichTextBox::Changing changing(*m_box);
    m_undo.Undo(ErrMsg);
}

void CodeEditor::Redo(QString &ErrMsg)
{
    const RichTextBox::Changing changing(*m_box);
    m_undo.Redo(ErrMsg);
}

void CodeEditor::replace(const QList<TextPiece> &pieces, const QString &text, Replacing how)
{
    if (pieces.isEmpty())
        return;
    const RichTextBox::Changing changing(*m_box);
    PushUndoSnapshot();
    m_colouring.finishEdit(); // the caret leaves the line
    if (how == Replacing::InColours)
        replaceInColours(*m_box, pieces, text);
    else
        m_box->replacePieces(pieces, text);
    m_box->ensureCursorVisible();
}

QString CodeEditor::GetPositionDisplay() const
{
    return positionDisplay(*m_box);
}

QString CodeEditor::GetWholeWord(qint32 StartIndex, qint32 &WordStartIndex, qint32 &Color) const
{
    const ColouredWord word = GetWordAndColourAt(*m_box, StartIndex);
    WordStartIndex = word.WordStart;
    Color = word.Colour;
    return word.Word;
}

// The search begins one character before the line and ends one behind it, as
// published; S is at least 1, so that it exists for the first line too.
void CodeEditor::HighLightText(const QString &Text, qint16 LineNumber)
{
    if (LineNumber < 1 || LineNumber > m_box->lineCount())
        return;
    const qint32 line = LineNumber - 1;
    const qint32 lineStart = m_box->lineStart(line);
    const qint32 S = std::max(lineStart, 1);
    const qint32 E = lineStart + static_cast<qint32>(m_box->lineText(line).size());
    const qint32 found = m_box->Find(Text, S - 1, E + 1);
    if (found >= 0) {
        m_box->setSelStart(found);
        m_box->setSelLength(static_cast<qint32>(Text.size()));
    } else if (S < E) {
        m_box->setSelStart(S);
        m_box->setSelLength(E - S);
    }
    m_box->ensureCursorVisible();
}

void CodeEditor::typeText(const QString &text)
{
    const RichTextBox::Changing changing(*m_box);
    if (text == u"\r\n") {
        breakLine();
        return;
    }
    const bool isOneCharacter = text.size() == 1 || (text.size() == 2 && text[0].isHighSurrogate());
    if (!isOneCharacter) { // committed by an input method
        m_undo.noteTyped(text, m_isReady);
        pasteChecked(text);
        return;
    }
    m_undo.noteTyped(text, m_isReady);
    m_colouring.prepareTyping(text);
    const bool isTyped = m_colouring.edit([&] { m_box->setSelText(text); });
    if (isTyped && TypedColouring::finishesWord(text))
        m_colouring.finishEdit();
}

void CodeEditor::breakLine()
{
    PushUndoSnapshot();
    const qint32 line = m_box->GetLineFromChar(m_box->SelStart());
    if (!m_colouring.edit([this] { m_lines.breakLine(); }))
        return;
    m_colouring.finishLine(line);
    m_box->ensureCursorVisible();
}

void CodeEditor::indentLines()
{
    PushUndoSnapshot();
    changeIndent([this] { m_lines.indentSelectedLines(); });
}

void CodeEditor::unindentLines()
{
    PushUndoSnapshot();
    changeIndent([this] { m_lines.unindentSelectedLines(); });
}

// A line keeps its colours, and one that is not finished still waits for that.
void CodeEditor::changeIndent(const std::function<void()> &change)
{
    if (m_colouring.isUnfinished())
        edit(change);
    else
        change();
}

bool CodeEditor::deleteBlankBeforeCaret()
{
    bool isDone = false;
    edit([&] { isDone = m_lines.deleteBlankBeforeCaret(); });
    return isDone;
}

bool CodeEditor::unindentBeforeCaret()
{
    bool isDone = false;
    edit([&] { isDone = m_lines.unindentBeforeCaret(); });
    return isDone;
}

void CodeEditor::cutByKey()
{
    RTextCopy();
    if (m_box->SelLength() == 0)
        return;
    removeSelection();
}

void CodeEditor::removeSelection()
{
    const RichTextBox::Changing changing(*m_box);
    PushUndoSnapshot();
    edit([this] { m_box->setSelText(QString()); });
}

void CodeEditor::pasteClipboard()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    pasteFromOutside(QGuiApplication::clipboard()->text());
}

Pasted CodeEditor::pasteFromOutside(const QString &data)
{
    if (data.isEmpty() || m_box->isReadOnly() || !acceptPasteSize(data))
        return Pasted::Refused;
    if (data != m_box->SelText()) {
        PushUndoSnapshot();
        if (!raiseEvent(*this, &CodeEditor::UpdateUndoMenu))
            return Pasted::Refused;
    }
    return pasteChecked(data);
}

Pasted CodeEditor::pasteChecked(const QString &data)
{
    const RichTextBox::Changing changing(*m_box);
    const bool hasColours = isRtf(data);
    const std::optional<ColouredText> text = hasColours ? std::nullopt : textToPaste(*m_box, data);
    if (!text && !hasColours)
        return Pasted::Refused;
    const QPointer<RichTextBox> box = m_box; // the host may destroy it
    const qint32 rest = m_box->TextLength() - m_box->SelLength();
    if (text)
        pastePlain(*text);
    else
        pasteRtf(data);
    return box && box->TextLength() <= rest ? Pasted::Nothing : Pasted::Done;
}

// RTF keeps the colours that it comes with.
void CodeEditor::pasteRtf(const QString &rtf)
{
    const QPointer<RichTextBox> box = m_box; // the host may destroy it
    m_colouring.finishEdit();
    box->setSelRTF(rtf);
    if (box)
        box->ensureCursorVisible();
}

void CodeEditor::pastePlain(const ColouredText &text)
{
    const RichTextBox::Changing changing(*m_box);
    const qint32 firstLine = m_box->GetLineFromChar(m_box->SelStart());
    if (!m_colouring.edit([&] { m_box->setSelColoured(text); }))
        return;
    finishLines(firstLine, m_box->GetLineFromChar(m_box->SelStart()));
    m_box->ensureCursorVisible();
}

// Those before the last one, which the caret is still on.
void CodeEditor::finishLines(qint32 first, qint32 last)
{
    for (qint32 line = first; line < last; ++line)
        m_colouring.finishLine(line);
}

void CodeEditor::noteTextChange()
{
    m_undo.noteEdit();
    if (m_colouring.isEditing())
        m_popup.follow();
    else
        m_popup.close(); // it stood at a word that is no more
}

void CodeEditor::raiseStatus()
{
    QString description = GetPositionDisplay();
    raiseEvent(*this, &CodeEditor::StatusUpdate, description);
}

void CodeEditor::RefillListviewWithWordList()
{
    refillThreadWordList();
    m_popup.refill();
}

void CodeEditor::UpdateWordListItem(const QString &OldName, const QString &NewName,
                                    qint32 TypeIndex)
{
    threadPart<CodeWordList>().UpdateWordListItem(OldName, NewName, TypeIndex);
    m_popup.refill();
}

void CodeEditor::TryToPopupList(bool IsShowAbsolutely)
{
    if (m_popup.isShown()) {
        m_popup.close();
        return;
    }
    if (IsCommentLine(m_box->lineText(m_box->GetLineFromChar(m_box->SelStart())))) {
        caretToLineEnd();
        return;
    }
    if (IsShowAbsolutely || !rewriteKnownWord())
        m_popup.open();
    else
        m_box->setFocus();
}

// A word that needs no list takes its colour as it is typed.
bool CodeEditor::rewriteKnownWord()
{
    const RichTextBox::Changing changing(*m_box);
    const QString word = GetWordAtCaret(*m_box).Word;
    qint32 colour = 0;
    if (word.isEmpty())
        return false;
    if (!isNumeric(word)) {
        auto &known = threadPart<CodeWordList>();
        const qsizetype place = m_popup.words().find(word);
        if (!known.FindInWordList(word, true) || place < 0)
            return false;
        colour = m_popup.words().words()[place].style.Colour;
    }
    SetWordAtCaret(*m_box, word, colour);
    m_colouring.noteEdit();
    return true;
}

void CodeEditor::caretToLineEnd()
{
    const qint32 line = m_box->GetLineFromChar(m_box->SelStart());
    m_box->setSelStart(m_box->lineStart(line) + static_cast<qint32>(m_box->lineText(line).size()));
}

void CodeEditor::takeWord(const QString &word, qint32 colour)
{
    const RichTextBox::Changing changing(*m_box);
    PushUndoSnapshot();
    m_box->setSelStart(m_box->SelStart()); // the word's line, of those selected
    m_colouring.noteEdit();
    edit([&] { SetWordAtCaret(*m_box, word, colour); });
    m_box->setFocus();
}

bool CodeEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_box && event->type() == QEvent::FocusIn)
        m_tabStops.takeFrom(form());
    else if (watched == m_box && event->type() == QEvent::FocusOut)
        leaveFocus();
    return QObject::eventFilter(watched, event);
}

QWidget *CodeEditor::form() const
{
    if (auto *codeParent = qobject_cast<QWidget *>(threadPart<HostForms>().codeParent.data()))
        return codeParent;
    return m_form ? m_form.data() : m_box->window();
}

void CodeEditor::leaveFocus()
{
    m_tabStops.giveBack();
    m_popup.close();
    m_colouring.finishEdit();
}

} // namespace ORVTListview
