#include "ListedName.h"

#include "ResultPlace.h"
#include "base/TextRules.h"
#include "base/TextSearch.h"
#include "editor/rules/structure/BlockWords.h"
#include "project/Project.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <algorithm>

namespace ORVTListview {

bool ListedName::follow(ShownUse &use, const ProgramViews &programs, const Project *project) const
{
    ResultPlace &place = use.place;
    if (place.line == 0)
        return isIn(project, place);
    const ProgramList &list = programs.list();
    if (std::ranges::find(list, place.program, &ProjectProgram::id) == list.cend())
        return false;
    const RichTextBox &box = *programs.view(place.program).RTextBox();
    if (place.line > box.lineCount())
        return false;
    const QString text = box.lineText(place.line - 1);
    place.piece = pieceIn(text, place.piece.start);
    use.text = text.simplified();
    return place.piece.length > 0;
}

bool ListedName::isIn(const Project *project, const ResultPlace &place) const
{
    if (!project)
        return false;
    const QVariantList cells = project->rows(place.type).value(place.row).cells;
    return std::ranges::any_of(cells, [this](const QVariant &cell) {
        return isSameWord(cell.toString().trimmed(), name);
    });
}

// Where it was, or else the first place in the line; nothing where it is gone.
TextPiece ListedName::pieceIn(const QString &text, qint32 start) const
{
    TextPiece found;
    const auto note = [&found, start](const TextPiece &piece) {
        if (found.length == 0 || piece.start == start)
            found = piece;
    };
    if (isPoint) {
        for (const TextPiece &word : wordsOf(text)) {
            if (isSameWord(QStringView(text).sliced(word.start, word.length), name))
                note(word);
        }
        return found;
    }
    const auto length = static_cast<qint32>(name.size());
    for (qsizetype at = findText(text, name, 0, text.size()); at >= 0;
         at = findText(text, name, at + length, text.size()))
        note({static_cast<qint32>(at), length});
    return found;
}

} // namespace ORVTListview
