#include "editor/rules/language/CodeText.h"

#include "base/TextRules.h"

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr QStringView lineBreak = u"\r\n";

QStringView lineAt(QStringView text, qint32 position)
{
    const LineRange line = LineBounds(text, position);
    return text.sliced(line.LineStart - 1, line.LineEnd - line.LineStart + 1);
}

} // namespace

bool IsCommentLine(QStringView Line)
{
    while (!Line.isEmpty() && isBlank(Line.front()))
        Line = Line.sliced(1);
    if (Line.size() < 3 || Line.first(3).compare(u"REM", Qt::CaseInsensitive) != 0)
        return false;
    return Line.size() == 3 || isBlank(Line[3]);
}

LineRange LineBounds(QStringView Text, qint32 Position)
{
    const qsizetype caret = std::min<qsizetype>(Position, Text.size());
    LineRange line;
    if (caret >= 1)
        line.LineStart = static_cast<qint32>(Text.first(caret).lastIndexOf(lineBreak)) + 3;
    if (line.LineStart == 2) // no line break before
        line.LineStart = 1;
    const qsizetype searchStart = std::max<qsizetype>(caret, 1);
    const qsizetype end = Text.indexOf(lineBreak, searchStart - 1);
    line.LineEnd = static_cast<qint32>(end < 0 ? Text.size() : end);
    return line;
}

bool IsCommentAt(QStringView Text, qint32 Position)
{
    return IsCommentLine(lineAt(Text, Position));
}

qint32 FindWordStart(QStringView Text, qint32 Position)
{
    qsizetype at = std::min<qsizetype>(Position, Text.size());
    for (; at >= 1; --at) {
        const QChar c = Text[at - 1];
        if (isBlank(c) || c == u'(' || c == u'\n')
            return static_cast<qint32>(at) + 1;
    }
    return 1;
}

qint32 FindWordEnd(QStringView Text, qint32 Position)
{
    qsizetype at = std::max(Position, 1);
    for (; at <= Text.size(); ++at) {
        const QChar c = Text[at - 1];
        if (c == u')' || c == u'\r' || (isBlank(c) && at > Position))
            break;
    }
    return static_cast<qint32>(std::min(at, Text.size() + 1));
}

WordAtCaret wordAtCaret(QStringView Text, qint32 Caret)
{
    const qint32 start = FindWordStart(Text, Caret);
    const qint32 end = FindWordEnd(Text, Caret);
    WordAtCaret found;
    found.WordStart = start;
    if (end > start) {
        const QStringView word = Text.sliced(start - 1, end - start);
        found.Word = word.toString();
        found.PartBeforeCaret =
            word.first(std::clamp<qsizetype>(Caret - start + 1, 0, word.size())).toString();
    }
    return found;
}

QString GetLineIndent(const QString &Line)
{
    QString rest = Line;
    rest.remove(u'\t');
    const QStringView words = trimmedSpaces(rest);
    return words.isEmpty() ? Line : Line.first(Line.indexOf(words.front()));
}

} // namespace ORVTListview
