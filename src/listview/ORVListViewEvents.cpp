// How the events of the control's parts reach the host.

#include "listview/ListViewFaces.h"
#include "widgets/input/RelayedEvents.h"
#include <ORVTListview/ORVListView.h>

namespace ORVTListview {

void ORVListView::connectEvents()
{
    connectListEvents();
    connectListKeys();
    connectListDrags();
    connect(d->table, &PointTable::QueryRead, this, &ORVListView::QueryRead);
    connect(d->editor, &CodeEditor::KeyDown, this, &ORVListView::KeyDown);
    connect(d->editor, &CodeEditor::MouseDown, this, &ORVListView::MouseDown);
    connect(d->editor, &CodeEditor::StatusUpdate, this, &ORVListView::StatusUpdate);
    connect(d->editor, &CodeEditor::UpdateUndoMenu, this, &ORVListView::UpdateUndoMenu);
    connect(d->editor, &CodeEditor::QueryAnalyze, this, &ORVListView::QueryAnalyze);
    connect(d->editor, &CodeEditor::QueryCompile, this, &ORVListView::QueryCompile);
}

void ORVListView::connectListEvents()
{
    connect(d->list, &ReportList::AfterLabelEdit, this, &ORVListView::AfterLabelEdit);
    connect(d->list, &ReportList::BeforeLabelEdit, this, &ORVListView::BeforeLabelEdit);
    connect(d->list, &ReportList::Click, this, &ORVListView::Click);
    connect(d->list, &ReportList::ColumnClick, this, &ORVListView::ColumnClick);
    connect(d->list, &ReportList::DblClick, this, &ORVListView::DblClick);
    connect(d->list, &ReportList::ItemCheck, this, &ORVListView::ItemCheck);
    connect(d->list, &ReportList::ItemClick, this, &ORVListView::ItemClick);
    relayMouse(d->list, this);
}

// While the list serves as word list, keys that go down are its own.
void ORVListView::connectListKeys()
{
    connect(d->list, &ReportList::KeyDown, this, [this](qint16 &KeyCode, qint16 Shift) {
        if (!d->isCode())
            Q_EMIT KeyDown(KeyCode, Shift);
        else if (PopupWordList &popup = d->editor->words().popup();
                 popup.isShown() && popup.key(KeyCode))
            KeyCode = 0;
    });
    connect(d->list, &ReportList::KeyPress, this, [this](qint16 &KeyAscii) {
        if (!d->isCode())
            Q_EMIT KeyPress(KeyAscii);
    });
    connect(d->list, &ReportList::KeyUp, this,
            [this](qint16 &KeyCode, qint16 Shift) { Q_EMIT KeyUp(KeyCode, Shift); });
}

void ORVListView::connectListDrags()
{
    relayDrags(d->list, this);
}

} // namespace ORVTListview
