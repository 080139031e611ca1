// tree_helper FILE: the other process in the test of killed trees. Makes and
// destroys one project tree after the other with its settings in that file; the
// n-th leaves each category on the page of its type plus n, modulo 10. Prints n
// when it is saved.

#include <ORVTListview/ORVTListview.h>
#include <ORVTListview/SettingsStore.h>

#include <QtWidgets/QApplication>

#include <cstdio>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int pageCount = 10;

void arrange(const ORVTreeview &tree, int number)
{
    Nodes &nodes = *tree.Nodes();
    for (int page = nodes.Item(1)->Children(); page < pageCount; ++page)
        nodes.Add(u"Device"_s, NodeRelationship::Child, u"Page%1"_s.arg(page));
    for (qint16 type = 0; type <= tree.GetItemsBound(); ++type) {
        const QString page = u"Page%1"_s.arg((type + number) % pageCount);
        nodes.Item(tree.GetItemKey(type))->setParent(nodes.Item(page));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    setSettingsFile(QApplication::arguments().at(1));
    for (int number = 1;; ++number) {
        {
            const ORVTreeview tree;
            arrange(tree, number);
        }
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}
