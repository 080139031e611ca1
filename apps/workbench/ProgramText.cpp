#include "ProgramText.h"

#include "editor/rules/language/CodeText.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString withWordsApart(const QString &program)
{
    static const QRegularExpression tabBetweenWords(u"(?<=[^ \\t])\\t(?=[^ \\t])"_s);
    QStringList lines = program.split(u"\r\n"_s);
    for (QString &line : lines) {
        if (!IsCommentLine(line))
            line.replace(tabBetweenWords, u" "_s);
    }
    return lines.join(u"\r\n"_s);
}

} // namespace ORVTListview
