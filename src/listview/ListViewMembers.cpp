#include <ORVTListview/ORVListView.h>

#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "members/TextMembers.h"
#include "widgets/list/ListEvents.h"
#include <ORVTListview/CodeView.h>
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/DataObject.h>
#include <ORVTListview/ImageList.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using List = ORVListView;

QList<Member> tableMembers()
{
    return properties<List, "ListviewType", "CurrentType", "Key", "NumberItems",
                      "IsHOASupported">() +
           QList{readOnly<&List::ColumnHerders>(u"ColumnHerders"),
                 invokable<List, "GetSubItemWidth">(),
                 method<&List::UpdateListViewWidth>(u"UpdateListViewWidth", u"ErrMsg"),
                 invokable<List, "ChangeListviewNumber">()};
}

QList<Member> shellMembers()
{
    return QList{invokable<List, "SetImage">(), writeOnly<&List::setIsWait>(u"IsWait"),
                 writeOnly<&List::setFormParent>(u"FormParent")} +
           properties<List, "Caption", "Enabled", "MultiSelect">();
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
    };
}

QList<Member> rowCommands()
{
    return invokables<List, "Refresh", "StartLabelEdit", "Clear", "UpdateSubItems">() +
           QList{method<&List::Drag>(u"Drag", optional(u"Action"))};
}

QList<Member> editorMembers()
{
    return QList{writeOnly<&List::setRichTextVisible>(u"RichTextVisible"),
                 writeOnly<&List::setRichTexteNable>(u"RichTexteNable"),
                 invokable<List, "Init_RichTextBox">()} +
           properties<List, "CodeText", "CodeTextRTF">();
}

QList<Member> wordMembers()
{
    constexpr auto popup = qOverload<bool &>(&List::TryToPopupList);
    return {
        invokable<List, "GetColorText">(),
        method<&List::GetWholeWord>(u"GetWholeWord", u"StartIndex", u"WordStartIndex", u"Color"),
        writeOnly<&List::setIsSqrtSupported>(u"IsSqrtSupported"),
        invokable<List, "SetCodeParent">(),
        readOnly<&List::RTextBox>(u"RTextBox"),
        invokable<List, "RefillListviewWithWordList">(),
        method<popup>(u"TryToPopupList", optional(u"IsShowAbsolutely")),
        invokable<List, "UpdateWordListItem">(),
        readOnly<&List::GetImage>(u"GetImage"),
    };
}

QList<Member> undoMembers()
{
    return QList{method<&List::Undo>(u"Undo", u"ErrMsg"), method<&List::Redo>(u"Redo", u"ErrMsg")} +
           invokables<List, "IsUndoAvailable", "IsRedoAvailable">();
}

QList<Member> commandMembers()
{
    return {
        invokable<List, "RTextCut">(),
        invokable<List, "RTextCopy">(),
        method<&List::RTextPaste>(u"RTextPaste", u"Data"),
        invokable<List, "RTextSelectAll">(),
        method<&List::ReplaceRichTextBox>(u"ReplaceRichTextBox", u"OldWord", u"NewWord", u"ErrMsg",
                                          optional(u"IsChangeColor")),
        method<&List::FindInRichtext>(u"FindInRichtext", u"ErrMsg"),
        method<&List::ReplaceInRichtext>(u"ReplaceInRichtext", u"ErrMsg"),
        method<&List::HighLightText>(u"HighLightText", u"Text", u"LineNumber"),
        method<&List::ResetToolTipText>(u"ResetToolTipText", u"Text", u"IsLeftButton"),
        invokable<List, "GetPositionDisplay">(),
    };
}

// What the published control has not.
QList<Member> addedMembers()
{
    return properties<List, "labelColumn", "indentUnit", "columnLayout", "programColours">() +
           QList{readOnly<&List::listView>(u"listView"), readOnly<&List::codeView>(u"codeView")} +
           invokables<List, "openProgram", "restoreUnsavedText", "ClearUndoHistory">() +
           QList{method<&List::showFind>(u"showFind", optional(u"IsReplace"))};
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

QList<MemberFacts> tableFacts()
{
    return {
        {.name = u"ListviewType"_s, .range = u"0 to 12; others are ignored"_s},
        {.name = u"NumberItems"_s, .unit = u"rows"_s},
        {.name = u"ChangeListviewNumber"_s, .unit = u"rows"_s},
        {.name = u"GetSubItemWidth"_s, .unit = u"twip"_s, .range = u"Index: from 0"_s},
        {.name = u"Add"_s,
         .range = u"Index: 0 to Count() + 1"_s,
         .failures = {InvalidCall, SubscriptOutOfRange}},
        {.name = u"FindItem"_s,
         .range = u"Where: 0 to 2; fPartial: 0 to 1"_s,
         .failures = {InvalidCall}},
        {.name = u"HitTest"_s, .unit = u"twip"_s},
        {.name = u"SelectedItem"_s, .failures = {InvalidCall, ObjectNotSet}},
        {.name = u"UpdateSubItems"_s, .range = u"SubIndex: 1 to the number of columns less 1"_s},
        {.name = u"columnLayout"_s, .unit = u"twip"_s},
        {.name = u"Drag"_s, .range = u"1 and 2"_s},
        {.name = u"labelColumn"_s, .range = u"from 0"_s, .failures = {SubscriptOutOfRange}},
    };
}

QList<MemberFacts> editorFacts()
{
    return {
        {.name = u"GetWholeWord"_s, .unit = u"UTF-16 units; Color: colour"_s},
        {.name = u"IsSqrtSupported"_s,
         .range = u"\"true\", \"false\" or a number"_s,
         .failures = {TypeMismatch}},
        {.name = u"RefillListviewWithWordList"_s, .failures = {InvalidCall}},
        {.name = u"HighLightText"_s, .range = u"LineNumber: 1 to the number of lines"_s},
        {.name = u"indentUnit"_s, .range = u"blanks and tabs"_s},
        {.name = u"programColours"_s, .range = u"empty, or all nine; others are ignored"_s},
    };
}

const HandedClass handed(
    QMetaType::fromType<ORVListView *>(),
    &together<tableMembers, shellMembers, textMembers<List>, rowMembers, rowCommands, editorMembers,
              wordMembers, undoMembers, commandMembers, addedMembers, listEvents<List>, hostEvents>,
    &together<tableFacts, editorFacts, inputFacts>);

} // namespace

const MemberTable &ORVListView::Members() const
{
    return handed.table();
}

} // namespace ORVTListview
