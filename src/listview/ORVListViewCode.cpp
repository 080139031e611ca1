// The members of the code editor.

#include <ORVTListview/ORVListView.h>

#include "base/ThreadState.h"
#include "editor/WordReplacing.h"
#include "editor/rules/language/Vocabulary.h"
#include "find/FindDialog.h"
#include "listview/ListViewFaces.h"
#include "shared/points/HostForms.h"

namespace ORVTListview {

void ORVListView::Init_RichTextBox(const RichTextSettings &Setting)
{
    d->editor->text().Init_RichTextBox(Setting);
}

void ORVListView::openProgram(const QString &Text)
{
    d->editor->text().openProgram(Text);
}

QString ORVListView::CodeText() const
{
    return d->editor->text().CodeText();
}

void ORVListView::setCodeText(const QString &Text)
{
    d->editor->text().setCodeText(Text);
}

QString ORVListView::CodeTextRTF()
{
    return d->editor->text().CodeTextRTF();
}

void ORVListView::setCodeTextRTF(const QString &Rtf)
{
    d->editor->text().setCodeTextRTF(Rtf);
}

QString ORVListView::GetColorText(const QString &Text)
{
    return d->editor->text().GetColorText(Text);
}

void ORVListView::setRichTextVisible(bool Visible)
{
    d->editor->box().setVisible(Visible);
}

void ORVListView::setRichTexteNable(bool Enable)
{
    d->editor->box().setEnabled(Enable);
}

void ORVListView::setIsSqrtSupported(const QString &Value)
{
    d->editor->thread().vocabulary.setIsSqrtSupported(Value);
}

RichTextBox *ORVListView::RTextBox() const
{
    return &d->editor->box();
}

CodeView *ORVListView::codeView() const
{
    return &d->editor->view();
}

void ORVListView::RefillListviewWithWordList()
{
    d->editor->words().RefillListviewWithWordList();
}

void ORVListView::UpdateWordListItem(const QString &OldName, const QString &NewName,
                                     LwType TypeIndex)
{
    d->editor->words().UpdateWordListItem(OldName, NewName, TypeIndex);
}

void ORVListView::TryToPopupList(bool &IsShowAbsolutely)
{
    if (d->isCode())
        d->editor->words().TryToPopupList(IsShowAbsolutely);
}

void ORVListView::TryToPopupList()
{
    bool isShowAbsolutely = false;
    TryToPopupList(isShowAbsolutely);
}

QString ORVListView::GetWholeWord(qint32 &StartIndex, qint32 &WordStartIndex, qint32 &Color)
{
    return d->editor->places().GetWholeWord(StartIndex, WordStartIndex, Color);
}

ImageList *ORVListView::GetImage() const
{
    return &d->images;
}

void ORVListView::Undo(QString &ErrMsg)
{
    if (d->isCode())
        d->editor->undo().Undo(ErrMsg);
}

void ORVListView::Redo(QString &ErrMsg)
{
    if (d->isCode())
        d->editor->undo().Redo(ErrMsg);
}

bool ORVListView::IsUndoAvailable() const
{
    return d->isCode() && d->editor->undo().hasStep(EditorUndo::Way::Back);
}

bool ORVListView::IsRedoAvailable() const
{
    return d->isCode() && d->editor->undo().hasStep(EditorUndo::Way::Forward);
}

bool ORVListView::restoreUnsavedText()
{
    return d->isCode() && d->editor->undo().bringBackKeptText();
}

void ORVListView::ClearUndoHistory()
{
    d->editor->undo().clearHistory();
}

void ORVListView::RTextCut()
{
    d->editor->clipboard().RTextCut();
}

void ORVListView::RTextCopy()
{
    d->editor->clipboard().RTextCopy();
}

void ORVListView::RTextSelectAll()
{
    d->editor->text().RTextSelectAll();
}

void ORVListView::RTextPaste(QString &Data)
{
    d->editor->clipboard().RTextPaste(Data);
}

void ORVListView::FindInRichtext(QString &ErrMsg)
{
    if (d->isCode())
        FindDialog::showModally(d->editor->box(), false, ErrMsg);
}

void ORVListView::ReplaceInRichtext(QString &ErrMsg)
{
    if (d->isCode())
        FindDialog::showModally(d->editor->box(), true, ErrMsg);
}

void ORVListView::showFind(bool IsReplace)
{
    if (d->isCode())
        FindDialog::showBeside(d->editor->box(), IsReplace);
}

void ORVListView::ReplaceRichTextBox(const QString &OldWord, const QString &NewWord,
                                     QString &ErrMsg, bool IsChangeColor)
{
    replaceWord(d->editor->editing(), OldWord, NewWord, IsChangeColor, ErrMsg);
}

QString ORVListView::GetPositionDisplay() const
{
    return d->editor->places().GetPositionDisplay();
}

void ORVListView::HighLightText(QString &Text, qint16 &LineNumber)
{
    d->editor->places().HighLightText(Text, LineNumber);
}

void ORVListView::ResetToolTipText(QString &Text, bool &IsLeftButton)
{
    d->table->setToolTip(Text, IsLeftButton);
}

void ORVListView::SetCodeParent(QWidget *f)
{
    d->editor->thread().forms.codeParent = f;
}

void ORVListView::setFormParent(QWidget *Form)
{
    d->editor->setForm(Form);
}

QString ORVListView::indentUnit() const
{
    return d->editor->editing().lines().indentUnit();
}

void ORVListView::setIndentUnit(const QString &unit)
{
    d->editor->editing().lines().setIndentUnit(unit);
    d->told.tell(*this);
}

} // namespace ORVTListview
