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
    d->editor->Init_RichTextBox(Setting);
}

QString ORVListView::CodeText() const
{
    return d->editor->CodeText();
}

void ORVListView::setCodeText(const QString &Text)
{
    d->editor->setCodeText(Text);
}

QString ORVListView::CodeTextRTF()
{
    return d->editor->CodeTextRTF();
}

void ORVListView::setCodeTextRTF(const QString &Rtf)
{
    d->editor->setCodeTextRTF(Rtf);
}

QString ORVListView::GetColorText(const QString &Text)
{
    return d->editor->GetColorText(Text);
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
    threadPart<Vocabulary>().setIsSqrtSupported(Value);
}

RichTextBox *ORVListView::RTextBox() const
{
    return &d->editor->box();
}

void ORVListView::RefillListviewWithWordList()
{
    d->editor->RefillListviewWithWordList();
}

void ORVListView::UpdateWordListItem(const QString &OldName, const QString &NewName,
                                     LwType TypeIndex)
{
    d->editor->UpdateWordListItem(OldName, NewName, TypeIndex);
}

void ORVListView::TryToPopupList(bool &IsShowAbsolutely)
{
    if (d->isCode())
        d->editor->TryToPopupList(IsShowAbsolutely);
}

void ORVListView::TryToPopupList()
{
    bool isShowAbsolutely = false;
    TryToPopupList(isShowAbsolutely);
}

QString ORVListView::GetWholeWord(qint32 &StartIndex, qint32 &WordStartIndex, qint32 &Color)
{
    return d->editor->GetWholeWord(StartIndex, WordStartIndex, Color);
}

ImageList *ORVListView::GetImage() const
{
    return &d->images;
}

void ORVListView::Undo(QString &ErrMsg)
{
    if (d->isCode())
        d->editor->Undo(ErrMsg);
}

void ORVListView::Redo(QString &ErrMsg)
{
    if (d->isCode())
        d->editor->Redo(ErrMsg);
}

bool ORVListView::IsUndoAvailable() const
{
    return d->isCode() && threadPart<UndoStore>().CanUndo();
}

bool ORVListView::IsRedoAvailable() const
{
    return d->isCode() && threadPart<UndoStore>().CanRedo();
}

bool ORVListView::restoreUnsavedText()
{
    return d->isCode() && d->editor->bringBackKeptText();
}

void ORVListView::ClearUndoHistory()
{
    d->editor->clearUndoHistory();
}

void ORVListView::RTextCut()
{
    d->editor->RTextCut();
}

void ORVListView::RTextCopy()
{
    d->editor->RTextCopy();
}

void ORVListView::RTextSelectAll()
{
    d->editor->RTextSelectAll();
}

void ORVListView::RTextPaste(QString &Data)
{
    d->editor->RTextPaste(Data);
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
    replaceWord(*d->editor, OldWord, NewWord, IsChangeColor, ErrMsg);
}

QString ORVListView::GetPositionDisplay() const
{
    return d->editor->GetPositionDisplay();
}

void ORVListView::HighLightText(QString &Text, qint16 &LineNumber)
{
    d->editor->HighLightText(Text, LineNumber);
}

void ORVListView::ResetToolTipText(QString &Text, bool &IsLeftButton)
{
    d->table->setToolTip(Text, IsLeftButton);
}

void ORVListView::SetCodeParent(QWidget *f)
{
    threadPart<HostForms>().codeParent = f;
}

void ORVListView::setFormParent(QWidget *Form)
{
    d->editor->setForm(Form);
}

QString ORVListView::indentUnit() const
{
    return d->editor->lines().indentUnit();
}

void ORVListView::setIndentUnit(const QString &unit)
{
    d->editor->lines().setIndentUnit(unit);
}

} // namespace ORVTListview
