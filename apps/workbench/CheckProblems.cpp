#include "CheckProblems.h"

#include "CheckTexts.h"
#include "editor/rules/structure/BlockWords.h"

namespace ORVTListview {
namespace {

// The first place of a word in a line; the whole line when it is a part of a longer word.
LinePiece placeOf(QStringView word, QStringView line)
{
    for (const LinePiece &piece : wordsOf(line)) {
        if (line.sliced(piece.offset, piece.length) == word)
            return piece;
    }
    return {0, line.size()};
}

} // namespace

QList<Problem> problemsOf(const QList<ProgramFinding> &findings, const QString &program)
{
    const QList<QStringView> lines = QStringView(program).split(u"\r\n");
    QList<Problem> problems;
    for (const ProgramFinding &finding : findings) {
        const LinePiece place = placeOf(finding.word, lines.value(finding.line - 1));
        problems.append({finding.line, static_cast<qint32>(place.offset),
                         static_cast<qint32>(place.length), ProblemSeverity::Error,
                         faultText(finding)});
    }
    return problems;
}

} // namespace ORVTListview
