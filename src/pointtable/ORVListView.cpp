#include "pointtable/ORVListView.h"

#include "editor/CodeEditor.h"
#include "editor/ThreadColouring.h"
#include "editor/Vocabulary.h"
#include "platform/RichTextBox.h"
#include "shared/DisplayNames.h"
#include "shared/ThreadState.h"

namespace ORVTListview {

struct ORVListView::Private
{
    explicit Private(ORVListView *control)
        : editor(new CodeEditor(control))
    {
    }

    CodeEditor *editor; // a child of the control
    LwType type = dsInput;
};

ORVListView::ORVListView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    switchToType(d->type);
}

ORVListView::~ORVListView() = default;

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
    box.setEnabled(type == dsCode);
    box.setVisible(type == dsCode);
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
    refillThreadWordList();
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
