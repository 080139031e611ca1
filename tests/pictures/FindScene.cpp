// The find dialog in both modes, beside an editor.

#include "editor/rules/colouring/ColourTable.h"
#include "find/FindDialog.h"
#include "find/fFind.h"
#include "pictures/Scenes.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

void findScene(Sheet &sheet)
{
    PointList inputs;
    inputs.Add(u"Temp1"_s);
    ORVTreeview tree;
    tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &inputs, nullptr, nullptr);
    ORVListView editor;
    editor.setListviewType(dsCode);
    RichTextSettings settings = defaultColours();
    settings.BackColor = static_cast<qint32>(0x80000005); // the window's
    editor.Init_RichTextBox(settings);
    editor.setCodeTextRTF(editor.GetColorText(u"IF Temp1 > 20\r\n\tTemp1_A = Temp1\r\nENDIF"_s));
    editor.resize(360, 100);
    editor.show();
    RichTextBox &box = *editor.RTextBox();
    box.setSelStart(0);

    fFind &dialog = FindDialog::shared();
    const auto click = [&dialog](const QString &name) {
        dialog.findChild<QPushButton *>(name)->click();
    };
    editor.showFind();
    sheet.add(u"Find, as it opens"_s, dialog);
    auto *wanted = dialog.findChild<QComboBox *>(u"Cbo0"_s);
    wanted->setEditText(u"Temp1"_s);
    click(u"Cmd0"_s);
    sheet.add(u"Find, found"_s, dialog);
    sheet.add(u"The editor then"_s, editor);
    click(u"Cmd2"_s);
    dialog.findChild<QComboBox *>(u"Cbo1"_s)->setEditText(u"Temp2"_s);
    click(u"Cmd3"_s);
    sheet.add(u"Replace, all replaced"_s, dialog);
    box.setReadOnly(true);
    wanted->setEditText(u"nowhere"_s);
    click(u"Cmd0"_s);
    sheet.add(u"Replace, not found, in a program that cannot be changed"_s, dialog);
    dialog.close();
}
