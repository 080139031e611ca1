#include "FindInPrograms.h"

#include "PlainTexts.h"
#include "base/TextSearch.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QCoreApplication>

namespace ORVTListview {
namespace {

constexpr qsizetype mostPlaces = 10000; // more than anybody reads

struct FindInPrograms
{
    Q_DECLARE_TR_FUNCTIONS(FindInPrograms)
};

void appendPlaces(QList<ShownUse> &places, qint32 program, qint32 line, const QString &text,
                  const QString &wanted)
{
    for (qsizetype at = findText(text, wanted, 0, text.size());
         at >= 0 && places.size() < mostPlaces;
         at = findText(text, wanted, at + wanted.size(), text.size())) {
        const TextPiece piece{static_cast<qint32>(at), static_cast<qint32>(wanted.size())};
        places.append({{.line = line, .piece = piece, .program = program}, text.simplified()});
    }
}

} // namespace

QList<ShownUse> findInPrograms(const ProgramViews &programs, const QString &text)
{
    QList<ShownUse> places;
    for (const ProjectProgram &program : programs.list()) {
        const RichTextBox &box = *programs.view(program.id).RTextBox();
        for (qint32 line = 0; line < box.lineCount(); ++line)
            appendPlaces(places, program.id, line + 1, box.lineText(line), text);
    }
    return places;
}

QString askTextToFind(QWidget &window, const ProgramViews &programs)
{
    const QString selected = programs.view(programs.current()).RTextBox()->SelText();
    const QString start =
        selected.contains(u'\n') || selected.contains(u'\r') ? QString() : selected;
    const auto text = PlainTexts::askText(window, FindInPrograms::tr("Find In Programs"),
                                          FindInPrograms::tr("Text to find:"), start);
    return text.value_or(QString());
}

} // namespace ORVTListview
