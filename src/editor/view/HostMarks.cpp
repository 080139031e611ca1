#include "editor/view/HostMarks.h"

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QStringList>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {

HostMarks::HostMarks(RichTextBox &box)
    : KeptLines(box)
{
}

void HostMarks::set(const QList<MarginMark> &marks)
{
    const QTextDocument &text = *box().document();
    m_given = marks;
    QList<Numbered> lines;
    for (const MarginMark &mark : marks)
        lines.append({text.findBlockByNumber(std::clamp(mark.line - 1, 0, text.blockCount() - 1)),
                      lines.size()});
    setLines(lines);
    Q_EMIT changed();
}

QList<MarginMark> HostMarks::list() const
{
    QList<MarginMark> marks;
    for (const Numbered &each : lines()) {
        marks.append(m_given[each.number]);
        marks.last().line = each.line.blockNumber() + 1;
    }
    return marks;
}

QIcon HostMarks::pictureOn(const QTextBlock &line) const
{
    for (qsizetype i = firstOn(line); i < endOn(line); ++i) {
        if (const QIcon &picture = m_given[numberAt(i)].picture; !picture.isNull())
            return picture;
    }
    return {};
}

QString HostMarks::textOn(const QTextBlock &line) const
{
    QStringList texts;
    for (qsizetype i = firstOn(line); i < endOn(line); ++i)
        texts.append(m_given[numberAt(i)].text);
    texts.removeAll(QString());
    return texts.join(u'\n');
}

} // namespace ORVTListview
