#include "editor/rules/LineTexts.h"

#include "editor/rules/language/CodeText.h"

#include <QtCore/QCollator>

#include <algorithm>
#include <numeric>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

QString commented(const QString &line)
{
    return isEmptyLine(line) ? line : QString(line).insert(GetLineIndent(line).size(), u"REM "_s);
}

// Without the blank behind the REM, too.
QString uncommented(const QString &line)
{
    if (isEmptyLine(line))
        return line;
    const QString indent = GetLineIndent(line);
    return indent + line.sliced(std::min(indent.size() + 4, line.size()));
}

qsizetype endOfText(const QString &line)
{
    qsizetype end = line.size();
    while (end > 0 && isBlank(line[end - 1]))
        --end;
    return end;
}

} // namespace

QStringList withCommentsToggled(const QStringList &lines)
{
    const bool areComments = std::all_of(lines.begin(), lines.end(), [](const QString &line) {
        return isEmptyLine(line) || IsCommentLine(line);
    });
    QStringList toggled;
    for (const QString &line : lines)
        toggled << (areComments ? uncommented(line) : commented(line));
    return toggled;
}

QList<qsizetype> sortedPlaces(const QStringList &lines)
{
    QCollator order(QLocale::English);
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    QList<qsizetype> places(lines.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&](qsizetype a, qsizetype b) {
        return order.compare(lines[a], lines[b]) < 0;
    });
    return places;
}

QList<TextEdit> joints(const QStringList &lines, qint32 start)
{
    QList<TextEdit> edits;
    qint32 lineStart = start;
    qint32 from = start + static_cast<qint32>(endOfText(lines.value(0)));
    bool hasWords = from > start;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        lineStart += static_cast<qint32>(lines[i - 1].size()) + 2;
        const bool isEmpty = isEmptyLine(lines[i]);
        const qsizetype skipped = hasWords || isEmpty ? GetLineIndent(lines[i]).size() : 0;
        const qint32 to = lineStart + static_cast<qint32>(skipped);
        if (isEmpty && i < lines.size() - 1)
            continue;
        edits.append({{from, to - from}, hasWords && !isEmpty ? u" "_s : QString()});
        from = lineStart + static_cast<qint32>(endOfText(lines[i]));
        hasWords = hasWords || !isEmpty;
    }
    return edits;
}

} // namespace ORVTListview
