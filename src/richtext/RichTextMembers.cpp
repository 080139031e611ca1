#include <ORVTListview/ORVRichText.h>

#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "members/InputEvents.h"
#include "members/TextMembers.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Shell = ORVRichText;

QList<Member> shellMembers()
{
    return invokables<Shell, "InitControl", "RichTextCut", "RichTextCopy", "RichTextSelectAll",
                      "ReinitializeWordCollection", "IsWordFound">() +
           QList{method<&Shell::Find>(u"Find", u"Name", u"IndexLine", u"IndexPosition")} +
           invokables<Shell, "ReplaceSpaceEquivalent", "Clear", "GetData", "ValidateTextColor",
                      "ReloadData">();
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
