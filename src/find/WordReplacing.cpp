#include "find/WordReplacing.h"

#include "editor/CodeEditor.h"
#include "find/ProgramSearch.h"
#include "platform/Failure.h"
#include "platform/RichTextBox.h"
#include "platform/TextPiece.h"
#include "platform/TextRules.h"
#include "shared/TextTable.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QGuiApplication>

namespace ORVTListview {
namespace {

void replaceThroughout(CodeEditor &editor, const QString &word, const QString &text,
                       CodeEditor::Replacing how)
{
    const auto length = static_cast<qint32>(word.size());
    QList<TextPiece> pieces;
    for (const qsizetype place : placesOfWord(editor.box().Text(), word))
        pieces.append({static_cast<qint32>(place), length});
    editor.replace(pieces, text, how);
}

} // namespace

void replaceWord(CodeEditor &editor, const QString &word, const QString &text, bool inColours,
                 QString &ErrMsg)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    const auto how =
        inColours ? CodeEditor::Replacing::InColours : CodeEditor::Replacing::InTheColoursThere;
    const QString failure = failureOf([&] { replaceThroughout(editor, asInBox(word), text, how); });
    if (!failure.isEmpty())
        ErrMsg = Localise(failure);
}

} // namespace ORVTListview
