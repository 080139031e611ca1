// The project tree: as it is at first, arranged, while a category is dragged,
// narrow, and disabled.

#include "pictures/Scenes.h"
#include "shared/texts/TextTable.h"
#include "widgets/nodes/NodeTree.h"

#include <ORVTListview/ORVTreeview.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void arrange(const ORVTreeview &tree)
{
    Nodes &nodes = *tree.Nodes();
    const QStringList captions{u"Internal Points"_s, u"Built-In Functions"_s,
                               u"Network Variables"_s, u"Hardware Configuration"_s};
    for (int page = 1; page <= 4; ++page)
        nodes.Add(u"Device"_s, NodeRelationship::Child, u"Page%1"_s.arg(page),
                  Localise(captions.at(page - 1)), u"Page"_s);
    const QList<std::pair<QString, int>> pages{
        {u"Variables"_s, 1},
        {u"Constants"_s, 1},
        {u"Controllers"_s, 2},
        {u"Logs"_s, 2},
        {u"Timers"_s, 2},
        {u"Optimum Starts"_s, 2},
        {u"Network Var Inputs"_s, 3},
        {u"Network Var Outputs"_s, 3},
        {u"Input Parameters"_s, 4},
        {u"Output Parameters"_s, 4},
    };
    for (const auto &[key, page] : pages)
        nodes.Item(key)->setParent(nodes.Item(u"Page%1"_s.arg(page)));
    for (int page = 1; page <= 4; ++page)
        nodes.Item(u"Page%1"_s.arg(page))->setExpanded(true);
}

} // namespace

void treeScene(Sheet &sheet)
{
    ORVTreeview tree;
    tree.setDesignMode(true); // leaves the settings alone
    tree.resize(300, 350);
    tree.show();
    tree.activateWindow();
    tree.setFocus();
    tree.setSelectedItem(tree.Nodes()->Item(u"Inputs"_s));
    sheet.add(u"One page, a category selected"_s, tree);

    arrange(tree);
    tree.SetNodeForeColor(dsInput, 0x008000);
    tree.SetNodeForeColor(dsVariable, 0xc06020);
    tree.setSelectedItem(tree.Nodes()->Item(u"Logs"_s));
    tree.resize(300, 440);
    sheet.add(u"Arranged, two categories coloured"_s, tree);

    auto *view = tree.findChild<NodeTree *>();
    view->setDropHighlight(tree.Nodes()->Item(u"Page3"_s));
    tree.Nodes()->Item(u"Page2"_s)->setExpanded(false);
    tree.resize(300, 360);
    sheet.add(u"A category dragged over a page"_s, tree);

    view->setDropHighlight(nullptr);
    tree.resize(150, 360);
    sheet.add(u"Narrow"_s, tree);

    tree.resize(300, 360);
    tree.setEnabled(false);
    sheet.add(u"Disabled"_s, tree);
}
