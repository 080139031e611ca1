#include <ORVTListview/ORVRichText.h>

#include "members/HandedClass.h"
#include "members/InputEvents.h"
#include "members/TextMembers.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Shell = ORVRichText;

QList<Member> shellMembers()
{
    return {
        method<&Shell::InitControl>(u"InitControl", u"FormParent"),
        method<&Shell::RichTextCut>(u"RichTextCut"),
        method<&Shell::RichTextCopy>(u"RichTextCopy"),
        method<&Shell::RichTextSelectAll>(u"RichTextSelectAll"),
        method<&Shell::ReinitializeWordCollection>(u"ReinitializeWordCollection"),
        method<&Shell::IsWordFound>(u"IsWordFound", u"Name"),
        method<&Shell::Find>(u"Find", u"Name", u"IndexLine", u"IndexPosition"),
        method<&Shell::ReplaceSpaceEquivalent>(u"ReplaceSpaceEquivalent", u"Data"),
        method<&Shell::Clear>(u"Clear"),
        method<&Shell::GetData>(u"GetData"),
        method<&Shell::ValidateTextColor>(u"ValidateTextColor"),
        method<&Shell::ReloadData>(u"ReloadData", u"Data"),
    };
}

QList<Member> inputEvents()
{
    const QList<Member> own{
        raises<&Shell::Change>(1, u"Change"),
        raises<&Shell::SelChange>(2, u"SelChange"),
    };
    return own + clickEvents<Shell>(3) + keyEvents<Shell>(5) + mouseEvents<Shell>(8) +
           dragEvents<Shell>(11);
}

QList<Member> hostEvents()
{
    return {
        raises<&Shell::MessageEvent>(17, u"MessageEvent", u"MSG", u"Number", u"Routine"),
        raises<&Shell::StatusUpdate>(18, u"StatusUpdate", u"Description"),
        raises<&Shell::UpdateUndoMenu>(19, u"UpdateUndoMenu"),
        raises<&Shell::QueryAnalyze>(20, u"QueryAnalyze"),
        raises<&Shell::QueryCompile>(21, u"QueryCompile"),
        raises<&Shell::MoveOutCursorEvent>(22, u"MoveOutCursorEvent"),
    };
}

const HandedClass handed(QMetaType::fromType<ORVRichText *>(),
                         &together<shellMembers, textMembers<Shell>, inputEvents, hostEvents>,
                         &inputFacts);

} // namespace

const MemberTable &ORVRichText::Members() const
{
    return handed.table();
}

} // namespace ORVTListview
