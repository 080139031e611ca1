#include "CheckProblems.h"

#include "CheckTexts.h"
#include "editor/rules/structure/BlockWords.h"

namespace ORVTListview {
namespace {

// The first place of a word in a line; the whole line when it is a part of a longer word.
TextPiece placeOf(QStringView word, QStringView line)
{
    for (const TextPiece &piece : wordsOf(line)) {
        if (line.sliced(piece.start, piece.length) == word)
            return piece;
    }
    return {0, static_cast<qint32>(line.size())};
}

} // namespace

QList<Problem> problemsOf(const QList<ProgramFinding> &findings, const QString &program)
{
    const QList<QStringView> lines = QStringView(program).split(u"\r\n");
    QList<Problem> problems;
    for (const ProgramFinding &finding : findings) {
        const TextPiece place = placeOf(finding.word, lines.value(finding.line - 1));
        problems.append(
            {finding.line, place.start, place.length, ProblemSeverity::Error, faultText(finding)});
    }
    return problems;
}

} // namespace ORVTListview
