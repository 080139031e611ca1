#include "editor/ProgramPlaces.h"

#include "editor/WordInBox.h"
#include "widgets/box/CaretPosition.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

#include <algorithm>

namespace ORVTListview {

ProgramPlaces::ProgramPlaces(RichTextBox &box, const EditorThread &thread)
    : m_box(box)
    , m_thread(thread)
{
}

QString ProgramPlaces::GetPositionDisplay() const
{
    return positionDisplay(caretPosition(m_box));
}

QString ProgramPlaces::GetWholeWord(qint32 StartIndex, qint32 &WordStartIndex, qint32 &Color) const
{
    const ColouredWord word = GetWordAndColourAt(m_thread, m_box, StartIndex);
    WordStartIndex = word.WordStart;
    Color = word.Colour;
    return word.Word;
}

// The search begins one character before the line and ends one behind it, as
// published; S is at least 1, so that it exists for the first line too.
void ProgramPlaces::HighLightText(const QString &Text, qint16 LineNumber)
{
    if (LineNumber < 1 || LineNumber > m_box.lineCount())
        return;
    const qint32 line = LineNumber - 1;
    const qint32 lineStart = m_box.lineStart(line);
    const qint32 S = std::max(lineStart, 1);
    const qint32 E = lineStart + static_cast<qint32>(m_box.lineText(line).size());
    if (m_box.Find(Text, S - 1, E + 1) >= 0 || S >= E)
        return;
    const KeptView view(m_box);
    m_box.setSelStart(S);
    m_box.setSelLength(E - S);
}

} // namespace ORVTListview
