// The code editor with all that can be shown beside a program: its margin, marks, blanks
// and values, the bars, and the list of words.

#include "editor/rules/colouring/ColourTable.h"
#include "pictures/Scenes.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/Problem.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtWidgets/QComboBox>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QString program = u"REM Heating\r\n"
                        "IF Temp1 < Limit1\r\n"
                        "    Valve1 = 100\r\n"
                        "    IF Fan1 = OFF\r\n"
                        "\tValve1 = 20  + Var1\r\n"
                        "    ENDIF\r\n"
                        "ELSE\r\n"
                        "    Valve1 = AVERAGE ( Temp1 , Temp2 )\r\n"
                        "    unknwn = 3\r\n"
                        "ENDIF\r\n"
                        "IF Temp2 > 30\r\n"
                        "    Fan1 = ON\r\n"
                        "ENDIF\r\n"_s;

struct Names
{
    Names()
    {
        inputs.Add(u"Temp1"_s);
        inputs.Add(u"Temp2"_s);
        outputs.Add(u"Fan1"_s);
        outputs.Add(u"Valve1"_s);
        constants.Add(u"Limit1"_s);
        variables.Add(u"Var1"_s);
        tree.setDesignMode(true); // leaves the settings alone
        tree.SetCollectionRenamable(nullptr, &variables, &constants, &inputs, &outputs, nullptr);
    }

    PointList inputs, outputs, constants, variables;
    ORVTreeview tree;
};

Problem problemAt(qint32 line, ProblemSeverity severity, const QString &text)
{
    return {.line = line, .from = 4, .length = 6, .severity = severity, .text = text};
}

void switchAllOn(CodeView &view)
{
    for (const char *shown :
         {"lineNumbersVisible", "currentLineShown", "pairsShown", "foldingEnabled",
          "indentGuidesShown", "blanksShown", "liveValuesShown"})
        view.setProperty(shown, true);
    view.setLiveValues({{u"Temp1"_s, u"19.4"_s}, {u"Fan1"_s, u"On"_s}});
}

void mark(CodeView &view)
{
    for (const qint32 line : {3, 8}) {
        view.goToLine(line);
        view.toggleBookmark();
    }
    view.setProblems({problemAt(9, ProblemSeverity::Error, u"Unknown name"_s),
                      problemAt(5, ProblemSeverity::Warning, u"A tab"_s),
                      problemAt(12, ProblemSeverity::Hint, u"Always on"_s)});
}

} // namespace

void editorScene(Sheet &sheet)
{
    const Names names;
    ORVListView editor;
    editor.setListviewType(dsCode);
    RichTextSettings settings = defaultColours();
    settings.BackColor = static_cast<qint32>(0x80000005); // the window's
    settings.FontName = u"DejaVu Sans Mono"_s;
    settings.FontSize = 10;
    editor.Init_RichTextBox(settings);
    editor.openProgram(program);
    editor.resize(460, 330);
    editor.show();
    editor.activateWindow();
    RichTextBox &box = *editor.RTextBox();
    box.setFocus();
    sheet.add(u"As it is at first"_s, editor);

    CodeView &view = *editor.codeView();
    switchAllOn(view);
    mark(view);
    view.goToLine(2);
    sheet.add(u"With all that is shown beside it"_s, editor);
    view.foldAll();
    sheet.add(u"Folded"_s, editor);
    view.unfoldAll();
    view.goToLine(4);
    box.setSelLength(30);
    sheet.add(u"A selection"_s, editor);
    view.setZoom(160);
    sheet.add(u"At 160 %"_s, editor);
    view.setZoom(100);

    view.showGoToLine();
    sheet.add(u"The field for a line"_s, editor);
    view.showFindBar();
    if (auto *wanted = box.findChild<QComboBox *>(u"FindBarWanted"_s))
        wanted->setEditText(u"valve1"_s);
    sheet.add(u"The find bar"_s, editor);

    box.setFocus();
    box.setSelStart(box.TextLength());
    editor.TryToPopupList();
    sheet.add(u"The list of words"_s, *editor.listView()->window());
}
