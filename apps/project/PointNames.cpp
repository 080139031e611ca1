#include "project/PointNames.h"

#include "base/TextRules.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/Vocabulary.h"
#include "project/ProjectColumns.h"
#include "project/ProjectTexts.h"

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// What divides words, and what the editor takes from nobody or RTF keeps for itself.
bool isForbidden(QChar c)
{
    return c.isSpace() || u"(),\\{}"_s.contains(c);
}

// The numbered names included, and SQRT whether or not this controller has it.
bool isReserved(const QString &name, IndexedNameCollection &families)
{
    Vocabulary language;
    language.setIsSqrtSupported(u"true"_s);
    language.setIndexedNames(&families);
    return IsCommentLine(name) || language.FunctionWordList().contains(name) ||
           language.classify(name).wordClass != WordClass::Other;
}

} // namespace

QString pointNameFault(const QString &name, IndexedNameCollection &families)
{
    if (!isPointName(name))
        return ProjectTexts::tr("\"%1\" is not the name of a point").arg(name);
    if (std::any_of(name.cbegin(), name.cend(), isForbidden))
        return ProjectTexts::tr("\"%1\" holds a blank or one of ( ) , \\ { }, which no name in a "
                                "program can")
            .arg(name);
    if (isNumeric(name))
        return ProjectTexts::tr("\"%1\" is a number").arg(name);
    if (isReserved(name, families))
        return ProjectTexts::tr("\"%1\" is a word of the language").arg(name);
    return {};
}

} // namespace ORVTListview
