#include "pointtable/ORVListView.h"

#include "editor/CodeEditor.h"
#include "editor/Vocabulary.h"
#include "find/FindDialog.h"
#include "find/WordReplacing.h"
#include "platform/ImageList.h"
#include "platform/PictureBox.h"
#include "platform/ReportList.h"
#include "platform/RichTextBox.h"
#include "shared/DisplayNames.h"
#include "shared/HostForms.h"
#include "shared/Pictures.h"
#include "shared/ThreadState.h"

#include <QtCore/QTimer>

namespace ORVTListview {

using namespace Qt::StringLiterals;

struct ORVListView::Private
{
    explicit Private(ORVListView *control)
        : list(new ReportList(control))
        , read(new PictureBox(images, control))
        , write(new PictureBox(images, control))
        , editor(new CodeEditor(control, *list))
    {
        Pictures::fillInto(images);
        list->setObjectName(u"ListView1"_s);
        read->setObjectName(u"ImgRead"_s);
        write->setObjectName(u"ImgWrite"_s);
        list->setPictureProvider([this](const QString &key) { return picture(key); });
    }

    // A row names its picture by key or by index.
    QIcon picture(const QString &key) const
    {
        bool isIndex = false;
        const int index = key.toInt(&isIndex);
        return isIndex ? images.Picture(index) : images.Picture(key);
    }

    ImageList images;
    ReportList *list; // these are children of the control
    PictureBox *read;
    PictureBox *write;
    CodeEditor *editor;
    LwType type = dsInput;
};

ORVListView::ORVListView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    auto *timerWidth = new QTimer(this); // published, without duties
    timerWidth->setObjectName(u"TimerWidth"_s);
    connect(d->editor, &CodeEditor::KeyDown, this, &ORVListView::KeyDown);
    connect(d->editor, &CodeEditor::MouseDown, this, &ORVListView::MouseDown);
    connect(d->editor, &CodeEditor::StatusUpdate, this, &ORVListView::StatusUpdate);
    connect(d->editor, &CodeEditor::UpdateUndoMenu, this, &ORVListView::UpdateUndoMenu);
    connect(d->editor, &CodeEditor::QueryAnalyze, this, &ORVListView::QueryAnalyze);
    connect(d->editor, &CodeEditor::QueryCompile, this, &ORVListView::QueryCompile);
    switchToType(d->type);
}

ORVListView::~ORVListView()
{
    delete d->editor; // before the widgets that it looks after
}

LwType ORVListView::ListviewType() const
{
    return d->type;
}

void ORVListView::setListviewType(LwType type)
{
    if (!isType(type))
        return;
    d->type = type;
    if (type == dsCode)
        threadPart<Vocabulary>().resetFunctionWords();
    switchToType(type);
}

LwType ORVListView::CurrentType() const
{
    return d->type;
}

QString ORVListView::Key() const
{
    return displayName(d->type);
}

void ORVListView::switchToType(LwType type)
{
    RichTextBox &box = d->editor->box();
    const bool isCode = type == dsCode;
    box.setEnabled(isCode);
    box.setVisible(isCode);
    setFocusProxy(isCode ? &box : nullptr);
    if (isCode)
        d->editor->takeList();
    else
        d->editor->giveListBack();
}

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
    if (d->type == dsCode)
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
    if (d->type == dsCode)
        d->editor->Undo(ErrMsg);
}

void ORVListView::Redo(QString &ErrMsg)
{
    if (d->type == dsCode)
        d->editor->Redo(ErrMsg);
}

bool ORVListView::IsUndoAvailable() const
{
    return d->type == dsCode && threadPart<UndoStore>().CanUndo();
}

bool ORVListView::IsRedoAvailable() const
{
    return d->type == dsCode && threadPart<UndoStore>().CanRedo();
}

bool ORVListView::restoreUnsavedText()
{
    return d->type == dsCode && d->editor->bringBackKeptText();
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
    if (d->type == dsCode)
        FindDialog::showModally(d->editor->box(), false, ErrMsg);
}

void ORVListView::ReplaceInRichtext(QString &ErrMsg)
{
    if (d->type == dsCode)
        FindDialog::showModally(d->editor->box(), true, ErrMsg);
}

void ORVListView::showFind(bool IsReplace)
{
    if (d->type == dsCode)
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
    (IsLeftButton ? d->read : d->write)->setToolTip(Text);
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

void ORVListView::Clear()
{
    if (d->type == dsCode)
        d->editor->Clear();
}

void ORVListView::resizeEvent(QResizeEvent *)
{
    d->editor->box().setGeometry(rect());
}

} // namespace ORVTListview
