#include "editor/code_editor.h"

#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/undo/UndoStore.h"

#include <QtCore/QCoreApplication>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

CodeEditorFace::CodeEditorFace(const QString &program)
{
    m_tree.SetCollectionRenamable(nullptr, &m_points.variables, &m_points.constants,
                                  &m_points.inputs, &m_points.outputs, &m_points.nvis);
    m_tree.setStringIndexCollection(&m_points.timers);
    m_editor.setListviewType(dsCode);
    m_editor.Init_RichTextBox(appearance());
    show(program);
}

void CodeEditorFace::show(const QString &program)
{
    m_editor.setCodeTextRTF(m_editor.GetColorText(program));
}

void CodeEditorFace::waitUntilIdle()
{
    while (threadPart<UndoStore>().isEncodingPending())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

QString fontName()
{
    return u"DejaVu Sans Mono"_s;
}

RichTextSettings appearance()
{
    RichTextSettings settings = defaultColours();
    settings.BackColor = 0xFFFFFF;
    settings.FontName = fontName();
    settings.FontSize = fontSize;
    return settings;
}

} // namespace ORVTListview::bench
