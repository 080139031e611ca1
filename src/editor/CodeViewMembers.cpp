#include <ORVTListview/CodeView.h>

#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/HoverAnswer.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using View = CodeView;

QList<Member> shownMembers()
{
    return properties<View, "lineNumbersVisible", "currentLineShown", "pairsShown",
                      "indentGuidesShown", "blanksShown", "adaptsColours", "zoom",
                      "liveValuesShown">();
}

QList<Member> markMembers()
{
    return invokables<View, "setLiveValues", "setProblems", "problems", "nextProblem",
                      "previousProblem", "setMarks", "marks", "toggleBookmark", "nextBookmark",
                      "bookmarks", "setBookmarks">();
}

QList<Member> foldMembers()
{
    return properties<View, "foldingEnabled">() + invokables<View, "foldAll", "unfoldAll">();
}

QList<Member> commandMembers()
{
    return properties<View, "commandsEnabled">() +
           invokables<View, "goToLine", "showGoToLine", "goToPartner", "moveLines",
                      "duplicateLines", "deleteLines", "joinLines", "sortLines", "toggleComment",
                      "upperCase", "lowerCase", "tidy">();
}

QList<Member> findMembers()
{
    return invokables<View, "showFindBar", "findNext", "findPrevious", "findNextAtCaret",
                      "findPreviousAtCaret">();
}

QList<Member> typingMembers()
{
    return properties<View, "autoIndent", "smartHome", "trimsBlanks", "wordListOpensItself",
                      "keepsText", "hasOwnUndo">() +
           invokables<View, "setWordDescriptions", "openProgram", "cancelOpening", "isOpening">();
}

QList<Member> events()
{
    return {
        raises<&View::openingProgress>(1, u"openingProgress", u"percent"),
        raises<&View::hoverAsked>(2, u"hoverAsked", u"word", u"line", u"answer"),
        raises<&View::problemChosen>(3, u"problemChosen", u"problem"),
    };
}

QList<MemberFacts> facts()
{
    return {
        {.name = u"zoom"_s, .unit = u"percent"_s, .range = u"0, or 20 to 500"_s},
        {.name = u"goToLine"_s, .range = u"1 to the number of lines; the nearest counts"_s},
        {.name = u"openingProgress"_s, .unit = u"percent"_s, .range = u"0 to 100"_s},
        {.name = u"hoverAsked"_s, .range = u"line: from 1"_s},
    };
}

// What hoverAsked hands out to be filled.
QList<Member> answerMembers()
{
    return properties<HoverAnswer, "text", "name", "kind", "value", "unit", "description">() +
           QList{readOnly<&HoverAnswer::isEmpty>(u"isEmpty")};
}

const HandedClass handedView(QMetaType::fromType<CodeView *>(),
                             &together<shownMembers, markMembers, foldMembers, commandMembers,
                                       findMembers, typingMembers, events>,
                             &facts);
const HandedClass handedAnswer(QMetaType::fromType<HoverAnswer *>(), &answerMembers);

} // namespace

} // namespace ORVTListview
