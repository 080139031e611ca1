#include "pointtable/ORVListView.h"

#include "editor/Vocabulary.h"
#include "find/FindDialog.h"
#include "find/WordReplacing.h"
#include "platform/ImageList.h"
#include "platform/PictureBox.h"
#include "platform/ReportList.h"
#include "platform/RichTextBox.h"
#include "pointtable/ColumnLayouts.h"
#include "pointtable/ORVListViewParts.h"
#include "shared/DisplayNames.h"
#include "shared/HostForms.h"
#include "shared/Pictures.h"
#include "shared/TextTable.h"
#include "shared/ThreadState.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ORVListView::Private::Private(ORVListView &owner)
    : control(owner)
    , list(new ReportList(&owner))
    , table(new PointTable(&owner, *list, images))
    , editor(new CodeEditor(&owner, *list))
{
    Pictures::fillInto(images);
    list->setObjectName(u"ListView1"_s);
    list->setPictureProvider([this](const QString &key) { return picture(key); });
}

ORVListView::Private::~Private()
{
    delete editor; // before the widgets that it looks after
}

// A row names its picture by key or by index.
QIcon ORVListView::Private::picture(const QString &key) const
{
    bool isIndex = false;
    const int index = key.toInt(&isIndex);
    return isIndex ? images.Picture(index) : images.Picture(key);
}

void ORVListView::Private::switchTo(LwType type)
{
    RichTextBox &box = editor->box();
    const bool hadFocus = list->hasFocus() || box.hasFocus();
    const bool showsCode = type == dsCode;
    if (showsCode)
        editor->takeList();
    else
        editor->giveListBack();
    table->switchTo(type);
    QWidget &face = showsCode ? static_cast<QWidget &>(box) : *list;
    control.setFocusProxy(&face);
    layOut();
    face.setEnabled(true);
    face.show();
    if (hadFocus)
        face.setFocus();
    if (showsCode)
        return;
    box.hide(); // an editor with the focus keeps tab stops from the others
    table->enterTabOrder(box);
}

void ORVListView::Private::layOut()
{
    const QRect body = table->layOut();
    editor->box().setGeometry(body);
    if (!isCode()) // else it is a window of its own
        list->setGeometry(body);
}

ORVListView::ORVListView(QWidget *parent)
    : Component(parent)
    , d(std::make_unique<Private>(*this))
{
    auto *timerWidth = new QTimer(this); // published, without duties
    timerWidth->setObjectName(u"TimerWidth"_s);
    connectEvents();
    connect(d->table, &PointTable::captionHeightChanged, this, [this] { d->layOut(); });
    d->table->setNumberItems(defaultNumberItems(dsInput));
    d->switchTo(dsInput);
    d->table->setCaption(QString());
}

ORVListView::~ORVListView()
{
    // The list outlives this object by a little, and a drag that runs then ends.
    d->list->disconnect(this);
}

LwType ORVListView::ListviewType() const
{
    return d->table->type();
}

void ORVListView::setListviewType(LwType type)
{
    if (!isType(type))
        return;
    d->table->setNumberItems(defaultNumberItems(type));
    if (type == dsCode)
        threadPart<Vocabulary>().resetFunctionWords();
    d->switchTo(type);
    const QPointer<ORVListView> self(this);
    Q_EMIT captionChanged();
    if (self)
        Q_EMIT listviewTypeChanged();
}

LwType ORVListView::CurrentType() const
{
    return d->table->type();
}

QString ORVListView::Key() const
{
    return d->table->key();
}

QString ORVListView::Caption() const
{
    return d->table->caption();
}

void ORVListView::setCaption(const QString &Text)
{
    d->table->setCaption(Text);
    Q_EMIT captionChanged();
}

bool ORVListView::Enabled() const
{
    return d->isEnabled;
}

void ORVListView::setEnabled(bool Enabled)
{
    d->isEnabled = Enabled;
    d->table->setEnabled(Enabled);
    d->list->setEnabled(Enabled);
    d->editor->box().setEnabled(Enabled);
    Q_EMIT enabledChanged();
}

bool ORVListView::MultiSelect() const
{
    return d->list->MultiSelect();
}

void ORVListView::setMultiSelect(bool MultiSelect)
{
    d->list->setMultiSelect(MultiSelect);
    Q_EMIT multiSelectChanged();
}

void ORVListView::InitStrings()
{
    d->table->InitStrings();
}

void ORVListView::ReInitializeStrings()
{
    threadPart<TextTable>().refresh();
    InitStrings();
    d->table->translateHeaders();
    Q_EMIT captionChanged();
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

QSize ORVListView::sizeHint() const
{
    return d->list->sizeHint() + QSize(0, d->table->bodyTop());
}

void ORVListView::resizeEvent(QResizeEvent *)
{
    d->layOut();
}

} // namespace ORVTListview
