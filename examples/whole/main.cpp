// A host of the whole: the project tree chooses what the pane beside it shows, a table of
// points or the program; the combo below offers the inputs.

#include <ORVTListview/ORVTListview.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QSplitter>

#include <cstdio>

using namespace ORVTListview;

namespace {

void showInputs(ORVListView &table, const PointList &inputs)
{
    table.setNumberItems(static_cast<qint16>(inputs.Count()));
    for (qint32 row = 1; row <= inputs.Count(); ++row)
        table.ListItems()->Item(row)->setSubItem(1, inputs.Item(row)->Name);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    PointList variables, constants, inputs, outputs, networkInputs;
    inputs.Add(QStringLiteral("SupplyTemp"), 101);
    inputs.Add(QStringLiteral("OutsideTemp"), 102);
    outputs.Add(QStringLiteral("HeatingValve"), 201);

    QSplitter window;
    ORVTreeview tree(&window);
    QSplitter pane(Qt::Vertical, &window);
    ORVListView table(&pane), editor(&pane);
    ORVDataCombo combo(&pane);
    tree.SetCollectionRenamable(&window, &variables, &constants, &inputs, &outputs, &networkInputs);

    table.setListviewType(dsInput);
    showInputs(table, inputs);
    editor.setListviewType(dsCode);
    RichTextSettings settings; // colours are 0x00BBGGRR
    settings.BackColor = 0xFFFFFF;
    settings.InputColor = 0x0000C0;
    settings.OutputColor = 0xFF0080;
    editor.Init_RichTextBox(settings);
    editor.openProgram(QStringLiteral("if (supplytemp < 18)\n  heatingvalve = 100\nendif"));
    QString problem;
    combo.FillDataListview(dsInput, nullptr, problem);

    QObject::connect(&tree, &ORVTreeview::NodeClick, [&](Node *node) {
        const int type = node->Tag().toInt(); // -1 the device, 13 and up a page
        if (type <= dsCode || type > dsOutputParam)
            return;
        table.setListviewType(static_cast<LwType>(type));
        if (type == dsInput)
            showInputs(table, inputs);
    });
    QObject::connect(&combo, &ORVDataCombo::picked, [&] {
        table.setSelectedItem(table.FindItem(combo.Text(), ReportList::WhereSubItem));
    });
    window.setStretchFactor(1, 1);
    window.resize(1000, 700);
    window.show();
    std::printf("%d inputs, %d points to pick\n%s\n", table.ListItems()->Count(), combo.ListCount(),
                qPrintable(editor.CodeText().section(u'\r', 0, 0)));
    return application.exec();
}
