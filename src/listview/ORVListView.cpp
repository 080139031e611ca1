#include <ORVTListview/ORVListView.h>

#include "base/EventGuard.h"
#include "base/ThreadState.h"
#include "editor/rules/language/Vocabulary.h"
#include "find/FindDialog.h"
#include "listview/ORVListViewParts.h"
#include "pointtable/rules/ColumnLayouts.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "widgets/look/Pictures.h"

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
    // The parts outlive this object by a little, and a drag that runs then ends.
    d->list->disconnect(this);
    d->table->disconnect(this);
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
    if (raiseEvent(*this, &ORVListView::captionChanged))
        raiseEvent(*this, &ORVListView::listviewTypeChanged);
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
    raiseEvent(*this, &ORVListView::captionChanged);
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
    raiseEvent(*this, &ORVListView::enabledChanged);
}

bool ORVListView::MultiSelect() const
{
    return d->list->MultiSelect();
}

void ORVListView::setMultiSelect(bool MultiSelect)
{
    d->list->setMultiSelect(MultiSelect);
    raiseEvent(*this, &ORVListView::multiSelectChanged);
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
    FindDialog::initStrings();
    raiseEvent(*this, &ORVListView::captionChanged);
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
