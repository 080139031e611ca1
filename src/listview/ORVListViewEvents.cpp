// How the events of the control's parts reach the host.

#include "base/EventGuard.h"
#include "listview/ListViewFaces.h"
#include "widgets/input/RelayedEvents.h"
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QMetaMethod>
#include <QtWidgets/QHeaderView>

#include <utility>

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
    relayClicks(d->list, this);
    connect(d->list, &ReportList::ColumnClick, this, &ORVListView::ColumnClick);
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

void ORVListView::connectProperties()
{
    d->told.add(*this, &ORVListView::Caption, &ORVListView::captionChanged);
    d->told.add(*this, &ORVListView::ListviewType, &ORVListView::listviewTypeChanged);
    d->told.add(*this, &ORVListView::NumberItems, &ORVListView::numberItemsChanged);
    d->told.add(*this, &ORVListView::labelColumn, &ORVListView::labelColumnChanged);
    d->told.add(*this, &ORVListView::IsHOASupported, &ORVListView::isHOASupportedChanged);
    d->told.add(*this, &ORVListView::Enabled, &ORVListView::enabledChanged);
    d->told.add(*this, &ORVListView::MultiSelect, &ORVListView::multiSelectChanged);
    d->told.add(*this, &ORVListView::indentUnit, &ORVListView::indentUnitChanged);
    d->told.add(*this, &ORVListView::columnLayout, &ORVListView::columnLayoutChanged);
    d->told.add(*this, &ORVListView::programColours, &ORVListView::programColoursChanged);
    const auto tell = [this] { d->told.tell(*this); };
    connect(d->list, &ReportList::multiSelectChanged, this, tell);
    connect(d->list, &ReportList::labelColumnChanged, this, tell);
    connect(d->list->grid(), &ListGrid::columnsArranged, this, tell);
    // The toolkit is at work on the columns still.
    connect(d->list->horizontalHeader(), &QHeaderView::sectionCountChanged, this, tell,
            Qt::QueuedConnection);
    connect(&d->editor->box(), &RichTextBox::Change, this, &ORVListView::tellCode);
    connect(&d->editor->box(), &QPlainTextEdit::textChanged, this, &ORVListView::tellCodeSoon);
}

// What the program is.

namespace {

bool isAnother(std::optional<QString> &told, const QString &now)
{
    return std::exchange(told, now) != now;
}

} // namespace

// Comparing programs takes time, which is spent only where somebody listens.
void ORVListView::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&ORVListView::codeTextChanged) && !d->toldCode)
        d->toldCode = CodeText();
    else if (signal == QMetaMethod::fromSignal(&ORVListView::codeTextRTFChanged) && !d->toldRtf)
        d->toldRtf = d->editor->box().TextRTF();
    InputComponent::connectNotify(signal);
}

void ORVListView::tellCode()
{
    static const QMetaMethod text = QMetaMethod::fromSignal(&ORVListView::codeTextChanged);
    static const QMetaMethod rtf = QMetaMethod::fromSignal(&ORVListView::codeTextRTFChanged);
    if (!isSignalConnected(text))
        d->toldCode.reset();
    if (!isSignalConnected(rtf))
        d->toldRtf.reset();
    if (d->toldCode && isAnother(d->toldCode, CodeText()) &&
        !raiseEvent(*this, &ORVListView::codeTextChanged))
        return;
    if (d->toldRtf && isAnother(d->toldRtf, d->editor->box().TextRTF()))
        raiseEvent(*this, &ORVListView::codeTextRTFChanged);
}

// Colours, and the letter case that comes with them, change without a Change.
void ORVListView::tellCodeSoon()
{
    if ((!d->toldCode && !d->toldRtf) || std::exchange(d->isCodeToBeTold, true))
        return;
    const auto tell = [this] {
        d->isCodeToBeTold = false;
        tellCode();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace ORVTListview
