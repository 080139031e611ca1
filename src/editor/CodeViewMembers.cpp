#include <ORVTListview/CodeView.h>

#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/HoverAnswer.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using View = CodeView;

QList<Member> shownMembers()
{
    return {
        readWrite<&View::lineNumbersVisible, &View::setLineNumbersVisible>(u"lineNumbersVisible"),
        readWrite<&View::currentLineShown, &View::setCurrentLineShown>(u"currentLineShown"),
        readWrite<&View::pairsShown, &View::setPairsShown>(u"pairsShown"),
        readWrite<&View::indentGuidesShown, &View::setIndentGuidesShown>(u"indentGuidesShown"),
        readWrite<&View::blanksShown, &View::setBlanksShown>(u"blanksShown"),
        readWrite<&View::adaptsColours, &View::setAdaptsColours>(u"adaptsColours"),
        readWrite<&View::zoom, &View::setZoom>(u"zoom"),
        readWrite<&View::liveValuesShown, &View::setLiveValuesShown>(u"liveValuesShown"),
        method<&View::setLiveValues>(u"setLiveValues", u"values"),
        method<&View::setProblems>(u"setProblems", u"problems"),
        method<&View::problems>(u"problems"),
        method<&View::nextProblem>(u"nextProblem"),
        method<&View::previousProblem>(u"previousProblem"),
        method<&View::toggleBookmark>(u"toggleBookmark"),
        method<&View::nextBookmark>(u"nextBookmark"),
        readWrite<&View::foldingEnabled, &View::setFoldingEnabled>(u"foldingEnabled"),
        method<&View::foldAll>(u"foldAll"),
        method<&View::unfoldAll>(u"unfoldAll"),
    };
}

QList<Member> commandMembers()
{
    return {
        readOnly<&View::commandsEnabled>(u"commandsEnabled"),
        method<&View::goToLine>(u"goToLine", u"line"),
        method<&View::showGoToLine>(u"showGoToLine"),
        method<&View::goToPartner>(u"goToPartner"),
        method<&View::moveLines>(u"moveLines", u"by"),
        method<&View::duplicateLines>(u"duplicateLines"),
        method<&View::deleteLines>(u"deleteLines"),
        method<&View::joinLines>(u"joinLines"),
        method<&View::sortLines>(u"sortLines"),
        method<&View::toggleComment>(u"toggleComment"),
        method<&View::upperCase>(u"upperCase"),
        method<&View::lowerCase>(u"lowerCase"),
        method<&View::tidy>(u"tidy"),
        method<&View::showFindBar>(u"showFindBar"),
        method<&View::findNext>(u"findNext"),
        method<&View::findPrevious>(u"findPrevious"),
        method<&View::findNextAtCaret>(u"findNextAtCaret"),
        method<&View::findPreviousAtCaret>(u"findPreviousAtCaret"),
    };
}

QList<Member> typingMembers()
{
    return {
        readWrite<&View::autoIndent, &View::setAutoIndent>(u"autoIndent"),
        readWrite<&View::smartHome, &View::setSmartHome>(u"smartHome"),
        readWrite<&View::trimsBlanks, &View::setTrimsBlanks>(u"trimsBlanks"),
        readWrite<&View::wordListOpensItself, &View::setWordListOpensItself>(
            u"wordListOpensItself"),
        readWrite<&View::keepsText, &View::setKeepsText>(u"keepsText"),
        readWrite<&View::hasOwnUndo, &View::setHasOwnUndo>(u"hasOwnUndo"),
        method<&View::setWordDescriptions>(u"setWordDescriptions", u"descriptions"),
        method<&View::openProgram>(u"openProgram", u"text"),
        method<&View::cancelOpening>(u"cancelOpening"),
        method<&View::isOpening>(u"isOpening"),
    };
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
    using Answer = HoverAnswer;
    return {
        readWrite<&Answer::text, &Answer::setText>(u"text"),
        readWrite<&Answer::name, &Answer::setName>(u"name"),
        readWrite<&Answer::kind, &Answer::setKind>(u"kind"),
        readWrite<&Answer::value, &Answer::setValue>(u"value"),
        readWrite<&Answer::unit, &Answer::setUnit>(u"unit"),
        readWrite<&Answer::description, &Answer::setDescription>(u"description"),
        readOnly<&Answer::isEmpty>(u"isEmpty"),
    };
}

const HandedClass handedView(QMetaType::fromType<CodeView *>(),
                             &together<shownMembers, commandMembers, typingMembers, events>,
                             &facts);
const HandedClass handedAnswer(QMetaType::fromType<HoverAnswer *>(), &answerMembers);

} // namespace

} // namespace ORVTListview
