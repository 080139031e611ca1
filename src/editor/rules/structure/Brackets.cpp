#include "editor/rules/structure/Brackets.h"

#include "editor/rules/language/CodeText.h"

namespace ORVTListview {
namespace {

bool isBracket(QStringView line, qsizetype at)
{
    return at >= 0 && at < line.size() && (line[at] == u'(' || line[at] == u')');
}

std::optional<qsizetype> partnerOf(QStringView line, qsizetype bracket)
{
    const QChar own = line[bracket];
    const qsizetype step = own == u'(' ? 1 : -1;
    int depth = 0;
    for (qsizetype i = bracket; i >= 0 && i < line.size(); i += step) {
        if (isBracket(line, i))
            depth += line[i] == own ? 1 : -1;
        if (depth == 0)
            return i;
    }
    return {};
}

} // namespace

std::optional<BracketPair> bracketAt(QStringView line, qsizetype caret)
{
    const qsizetype bracket = isBracket(line, caret) ? caret : caret - 1;
    if (!isBracket(line, bracket) || IsCommentLine(line))
        return {};
    return BracketPair{bracket, partnerOf(line, bracket)};
}

} // namespace ORVTListview
