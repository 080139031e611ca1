#include "editor/LineCommands.h"

#include "base/TextPiece.h"
#include "base/TextRules.h"
#include "editor/BoxSelection.h"
#include "editor/rules/LineTexts.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QTextBlock>

#include <algorithm>

namespace ORVTListview {
namespace {

// What is folded is stepped over.
QTextBlock nextShownLine(QTextBlock line, int direction)
{
    do
        line = direction < 0 ? line.previous() : line.next();
    while (line.isValid() && !line.isVisible());
    return line;
}

// How far a place in a line moves when the line's beginning changes by `change`.
qint32 movedBy(qint32 offset, qint32 change)
{
    return offset == 0 ? 0 : std::max(change, -offset);
}

} // namespace

LineCommands::LineCommands(RichTextBox &box)
    : m_box(box)
{
    fitTabStops();
}

void LineCommands::setIndentUnit(const QString &unit)
{
    if (unit.isEmpty() || !isEmptyLine(unit))
        return;
    m_unit = unit;
    fitTabStops();
}

// Of a unit of tabs each stands for as much as an indent has at first.
void LineCommands::fitTabStops()
{
    const QString blanks = QString(m_unit).replace(u'\t', QStringLiteral("    "));
    const qreal width =
        QFontMetricsF(m_box.font(), &m_box).horizontalAdvance(blanks) * m_zoom / 100;
    if (m_box.tabStopDistance() != width)
        m_box.setTabStopDistance(width);
}

void LineCommands::setZoom(int percent)
{
    m_zoom = percent;
    fitTabStops();
}

// Each line is changed at its beginning only, so its colours move as they are.
template <typename ChangeLine>
void LineCommands::changeSelectedLines(ChangeLine changeLine)
{
    const LineSpan lines = selectedLines(m_box);
    const qint32 selStart = m_box.SelStart();
    const qint32 selEnd = selStart + m_box.SelLength();
    const bool isUpward = m_box.textCursor().position() < m_box.textCursor().anchor();
    const qint32 begin = m_box.lineStart(lines.first);
    qint32 newStart = selStart;
    qint32 newEnd = selEnd;
    ColouredText changed;
    for (qint32 i = lines.first; i <= lines.last; ++i) {
        const qint32 lineStart = m_box.lineStart(i);
        const QString before = m_box.lineText(i);
        const QString after = changeLine(before);
        const auto change = static_cast<qint32>(after.size() - before.size());
        if (i == lines.first)
            newStart += movedBy(selStart - lineStart, change);
        newEnd += i == lines.last ? movedBy(selEnd - lineStart, change) : change;

        const qsizetype added = std::max(change, 0);
        const qint32 removed = std::max(-change, 0);
        ColouredText kept =
            m_box.coloured(lineStart + removed,
                           static_cast<qint32>(before.size()) - removed + (i < lines.last ? 2 : 0));
        if (added > 0)
            changed.runs.append({added, ColouredText::automatic});
        changed.text += after.first(added) + kept.text;
        changed.runs += kept.runs;
    }
    const qint32 end = lineEnd(m_box, lines.last);
    m_box.setSelStart(begin);
    m_box.setSelLength(end - begin);
    m_box.setSelColoured(changed);
    if (isUpward)
        select(m_box, {newEnd, newStart});
    else
        select(m_box, {newStart, newEnd});
}

void LineCommands::indentSelectedLines()
{
    changeSelectedLines(
        [this](const QString &line) { return line.isEmpty() ? line : m_unit + line; });
}

void LineCommands::unindentSelectedLines()
{
    changeSelectedLines([this](const QString &line) { return withoutOneUnit(line); });
}

QString LineCommands::withoutOneUnit(const QString &line) const
{
    if (line.startsWith(m_unit))
        return line.sliced(m_unit.size());
    if (line.startsWith(u'\t'))
        return line.sliced(1);
    qsizetype blanks = 0;
    while (blanks < std::min(m_unit.size(), line.size()) && line[blanks] == u' ')
        ++blanks;
    return line.sliced(blanks);
}

bool LineCommands::unindentBeforeCaret()
{
    const qint32 caret = m_box.SelStart();
    const qint32 lineStart = m_box.lineStart(m_box.GetLineFromChar(caret));
    const QString before = m_box.textRange(lineStart, caret - lineStart);
    if (m_box.SelLength() > 0 || before.isEmpty() || !isEmptyLine(before))
        return false;
    const qsizetype past = before.size() % m_unit.size();
    const qsizetype step = past > 0 ? past : m_unit.size();
    qsizetype removed = 1; // a tab goes alone
    while (before.back() == u' ' && removed < std::min(step, before.size()) &&
           before[before.size() - removed - 1] == u' ')
        ++removed;
    m_box.setSelStart(caret - static_cast<qint32>(removed));
    m_box.setSelLength(static_cast<qint32>(removed));
    m_box.setSelText(QString());
    return true;
}

bool LineCommands::deleteBlankBeforeCaret()
{
    const qint32 caret = m_box.SelStart();
    if (caret < 1 || m_box.SelLength() > 0)
        return false;
    const QString before = m_box.textRange(caret - 1, 1);
    if (before != u" " && before != u"\t")
        return false;
    m_box.replacePieces({{caret - 1, 1}}, QString()); // no selection to be kept is lost
    return true;
}

bool LineCommands::moveToSameOffset(int lines)
{
    const QTextCursor caret = m_box.textCursor();
    const QTextBlock target = nextShownLine(caret.block(), lines);
    const qint32 offset = caret.positionInBlock();
    if (!target.isValid() || offset < 1 || m_box.lineText(target.blockNumber()).size() < offset)
        return false;
    m_box.setSelStart(m_box.lineStart(target.blockNumber()) + offset);
    return true;
}

} // namespace ORVTListview
