#include <ORVTListview/ORVListView.h>

#include "members/InputEvents.h"
#include "members/TextMembers.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/DataObject.h>
#include <ORVTListview/ImageList.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using List = ORVListView;

QList<Member> shellMembers()
{
    return {
        readWrite<&List::ListviewType, &List::setListviewType>(u"ListviewType"),
        readOnly<&List::CurrentType>(u"CurrentType"),
        readOnly<&List::Key>(u"Key"),
        readWrite<&List::NumberItems, &List::setNumberItems>(u"NumberItems"),
        readWrite<&List::IsHOASupported, &List::setIsHOASupported>(u"IsHOASupported"),
        readOnly<&List::ColumnHerders>(u"ColumnHerders"),
        method<&List::GetSubItemWidth>(u"GetSubItemWidth", u"Index"),
        method<&List::UpdateListViewWidth>(u"UpdateListViewWidth", u"ErrMsg"),
        method<&List::ChangeListviewNumber>(u"ChangeListviewNumber", u"New_Count"),
        method<&List::SetImage>(u"SetImage", u"Busy"),
        writeOnly<&List::setIsWait>(u"IsWait"),
        writeOnly<&List::setFormParent>(u"FormParent"),
        readWrite<&List::Caption, &List::setCaption>(u"Caption"),
        readWrite<&List::Enabled, &List::setEnabled>(u"Enabled"),
        readWrite<&List::MultiSelect, &List::setMultiSelect>(u"MultiSelect"),
    };
}

QList<Member> rowMembers()
{
    return {
        method<&List::Add>(u"Add", optional(u"Index"), optional(u"Key"), optional(u"Text")),
        method<&List::FindItem>(u"FindItem", u"sz", optional(u"Where"), optional(u"Index", 1),
                                optional(u"fPartial")),
        method<&List::GetFirstVisible>(u"GetFirstVisible"),
        method<&List::HitTest>(u"HitTest", u"X", u"Y"),
        readOnly<&List::ListItems>(u"ListItems"),
        readWrite<&List::SelectedItem, &List::setSelectedItem>(u"SelectedItem"),
        method<&List::Refresh>(u"Refresh"),
        method<&List::StartLabelEdit>(u"StartLabelEdit"),
        method<&List::Clear>(u"Clear"),
        method<&List::UpdateSubItems>(u"UpdateSubItems", u"Value", u"TagValue", u"SubIndex"),
        method<&List::Drag>(u"Drag", optional(u"Action")),
    };
}

QList<Member> editorMembers()
{
    constexpr auto popup = qOverload<bool &>(&List::TryToPopupList);
    return {
        writeOnly<&List::setRichTextVisible>(u"RichTextVisible"),
        writeOnly<&List::setRichTexteNable>(u"RichTexteNable"),
        method<&List::Init_RichTextBox>(u"Init_RichTextBox", u"Setting"),
        readWrite<&List::CodeText, &List::setCodeText>(u"CodeText"),
        readWrite<&List::CodeTextRTF, &List::setCodeTextRTF>(u"CodeTextRTF"),
        method<&List::GetColorText>(u"GetColorText", u"Text"),
        method<&List::GetWholeWord>(u"GetWholeWord", u"StartIndex", u"WordStartIndex", u"Color"),
        writeOnly<&List::setIsSqrtSupported>(u"IsSqrtSupported"),
        method<&List::SetCodeParent>(u"SetCodeParent", u"f"),
        readOnly<&List::RTextBox>(u"RTextBox"),
        method<&List::RefillListviewWithWordList>(u"RefillListviewWithWordList"),
        method<popup>(u"TryToPopupList", optional(u"IsShowAbsolutely")),
        method<&List::UpdateWordListItem>(u"UpdateWordListItem", u"OldName", u"NewName",
                                          u"TypeIndex"),
        readOnly<&List::GetImage>(u"GetImage"),
    };
}

QList<Member> commandMembers()
{
    return {
        method<&List::Undo>(u"Undo", u"ErrMsg"),
        method<&List::Redo>(u"Redo", u"ErrMsg"),
        method<&List::IsUndoAvailable>(u"IsUndoAvailable"),
        method<&List::IsRedoAvailable>(u"IsRedoAvailable"),
        method<&List::RTextCut>(u"RTextCut"),
        method<&List::RTextCopy>(u"RTextCopy"),
        method<&List::RTextPaste>(u"RTextPaste", u"Data"),
        method<&List::RTextSelectAll>(u"RTextSelectAll"),
        method<&List::ReplaceRichTextBox>(u"ReplaceRichTextBox", u"OldWord", u"NewWord", u"ErrMsg",
                                          optional(u"IsChangeColor")),
        method<&List::FindInRichtext>(u"FindInRichtext", u"ErrMsg"),
        method<&List::ReplaceInRichtext>(u"ReplaceInRichtext", u"ErrMsg"),
        method<&List::HighLightText>(u"HighLightText", u"Text", u"LineNumber"),
        method<&List::ResetToolTipText>(u"ResetToolTipText", u"Text", u"IsLeftButton"),
        method<&List::GetPositionDisplay>(u"GetPositionDisplay"),
    };
}

QList<Member> listEvents()
{
    const QList<Member> own{
        raises<&List::AfterLabelEdit>(1, u"AfterLabelEdit", u"Cancel", u"NewString"),
        raises<&List::BeforeLabelEdit>(2, u"BeforeLabelEdit", u"Cancel"),
        raises<&List::Click>(3, u"Click"),
        raises<&List::ColumnClick>(4, u"ColumnClick", u"ColumnHeader"),
        raises<&List::DblClick>(5, u"DblClick"),
        raises<&List::ItemCheck>(6, u"ItemCheck", u"Item"),
        raises<&List::ItemClick>(7, u"ItemClick", u"Item"),
    };
    return own + keyEvents<List>(8) + mouseEvents<List>(11) + dragEvents<List>(14);
}

QList<Member> hostEvents()
{
    return {
        raises<&List::QueryRead>(20, u"QueryRead", u"TypeIndex"),
        raises<&List::QueryReload>(21, u"QueryReload", u"TypeIndex"),
        raises<&List::QuerySetWord>(22, u"QuerySetWord", u"WordText"),
        raises<&List::StatusUpdate>(23, u"StatusUpdate", u"Description"),
        raises<&List::UpdateUndoMenu>(24, u"UpdateUndoMenu"),
        raises<&List::UpdateWordList>(25, u"UpdateWordList", u"TypeIndex"),
        raises<&List::QueryAnalyze>(26, u"QueryAnalyze"),
        raises<&List::QueryCompile>(27, u"QueryCompile"),
    };
}

} // namespace

const MemberTable &ORVListView::Members() const
{
    static const MemberTable table(QStringLiteral("ORVListView"),
                                   shellMembers() + textMembers<List>() + rowMembers() +
                                       editorMembers() + commandMembers() + listEvents() +
                                       hostEvents());
    return table;
}

} // namespace ORVTListview
