#pragma once

#include <QtCore/QString>

namespace ORVTListview {

class RichTextBox;
struct EditorThread;

// Where the caret is, what stands at a place, and the way to it.
class ProgramPlaces
{
public:
    ProgramPlaces(RichTextBox &box, const EditorThread &thread);

    QString GetPositionDisplay() const;
    QString GetWholeWord(qint32 StartIndex, qint32 &WordStartIndex, qint32 &Color) const;
    void HighLightText(const QString &Text, qint16 LineNumber);

private:
    RichTextBox &m_box;
    const EditorThread &m_thread;
};

} // namespace ORVTListview
