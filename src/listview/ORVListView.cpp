#include <ORVTListview/ORVListView.h>

#include "base/ThreadState.h"
#include "editor/rules/language/Vocabulary.h"
#include "editor/view/EditorBar.h"
#include "find/FindDialog.h"
#include "listview/ListViewFaces.h"
#include "pointtable/rules/ColumnLayouts.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ORVListView::ORVListView(QWidget *parent)
    : InputComponent(parent)
    , d(std::make_unique<ListViewFaces>(*this))
{
    auto *timerWidth = new QTimer(this); // published, without duties
    timerWidth->setObjectName(u"TimerWidth"_s);
    setFocusPolicy(Qt::TabFocus); // else no call puts the control into a tab order
    connectEvents();
    connect(d->table, &PointTable::captionHeightChanged, this, [this] { d->layOut(); });
    d->table->setNumberItems(defaultNumberItems(dsInput));
    d->switchTo(dsInput);
    d->table->setCaption(QString());
    connectProperties();
}

ORVListView::~ORVListView()
{
    // The parts outlive this object by a little, and a drag that runs then ends.
    d->list->disconnect(this);
    d->table->disconnect(this);
    d->editor->box().disconnect(this);
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
        d->editor->thread().vocabulary.resetFunctionWords();
    d->switchTo(type);
    const QPointer<ORVListView> self(this);
    if (type == dsCode && d->areColoursWaiting)
        d->showProgramColours();
    if (self) // a receiver may have destroyed it
        d->told.tell(*this);
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
    d->told.tell(*this);
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
    d->told.tell(*this);
}

bool ORVListView::MultiSelect() const
{
    return d->isMultiSelect();
}

void ORVListView::setMultiSelect(bool MultiSelect)
{
    const QPointer<ORVListView> self(this);
    d->setMultiSelect(MultiSelect);
    if (self) // a receiver may have destroyed it
        d->told.tell(*this);
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
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(d->list, &change);
    FindDialog::initStrings();
    EditorBar::initStrings(d->editor->box());
    d->told.tell(*this);
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
