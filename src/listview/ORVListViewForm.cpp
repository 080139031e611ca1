// What a form keeps beside the design-time properties.

#include <ORVTListview/ORVListView.h>

#include "listview/ListViewFaces.h"
#include "shared/points/ProgramColours.h"
#include "widgets/look/Colours.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListGrid.h>

#include <QtCore/QPointer>

namespace ORVTListview {

QString ORVListView::columnLayout() const
{
    return d->isCode() ? QString() : d->list->grid()->columnLayout(Key());
}

void ORVListView::setColumnLayout(const QString &layout)
{
    if (d->isCode() || layout == columnLayout())
        return;
    d->list->grid()->setColumnLayout(Key(), layout);
    ColumnHeaders &columns = *d->list->ColumnHeaders();
    for (qint32 i = 1; layout.isEmpty() && i <= columns.Count(); ++i)
        columns.Item(i)->setWidth(ColumnHeaders::defaultWidth);
    d->told.tell(*this);
}

QString ORVListView::programColours() const
{
    return d->programColours;
}

void ORVListView::setProgramColours(const QString &colours)
{
    RichTextSettings taken;
    if (colours == d->programColours || (!colours.isEmpty() && !takeProgramColours(taken, colours)))
        return;
    d->programColours = colours;
    const QPointer<ORVListView> self(this);
    if (d->isCode())
        d->showProgramColours();
    else
        d->areColoursWaiting = true;
    if (self) // a receiver may have destroyed it
        d->told.tell(*this);
}

void ListViewFaces::showProgramColours()
{
    areColoursWaiting = false;
    RichTextSettings settings = editor->thread().settings();
    if (!takeProgramColours(settings, programColours)) {
        takeProgramColours(settings, programColoursText({})); // black
        settings.BackColor = Colours::windowBackground;
    }
    editor->text().Init_RichTextBox(settings);
}

} // namespace ORVTListview
