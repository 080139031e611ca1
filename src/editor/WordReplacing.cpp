#include "editor/WordReplacing.h"

#include "base/TextPiece.h"
#include "base/TextRules.h"
#include "editor/ProgramEditing.h"
#include "find/rules/ProgramSearch.h"
#include "shared/texts/ToldFailure.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QScopeGuard>
#include <QtGui/QGuiApplication>

namespace ORVTListview {
namespace {

void replaceThroughout(ProgramEditing &editing, const QString &word, const QString &text,
                       ProgramEditing::Replacing how)
{
    const auto length = static_cast<qint32>(word.size());
    QList<TextPiece> pieces;
    for (const qsizetype place : placesOfWord(editing.box().Text(), word))
        pieces.append({static_cast<qint32>(place), length});
    editing.replace(pieces, text, how);
}

} // namespace

void replaceWord(ProgramEditing &editing, const QString &word, const QString &text, bool inColours,
                 QString &ErrMsg)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    const auto how = inColours ? ProgramEditing::Replacing::InColours
                               : ProgramEditing::Replacing::InTheColoursThere;
    tellingFailure(ErrMsg, [&] { replaceThroughout(editing, asInBox(word), text, how); });
}

} // namespace ORVTListview
