// The project tree beside the toolkit's own tree, each with a device, 1,000 pages
// and 13 categories, with their pictures, all expanded.

#include "support/painting.h"
#include "support/report.h"

#include "shared/points/DisplayNames.h"
#include "tree/rules/PageArrangement.h"
#include "widgets/look/Pictures.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/ImageList.h>
#include <ORVTListview/SettingsStore.h>

#include <ORVTListview/ORVTreeview.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidget>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int pageCount = 1000;
constexpr int repetitions = 41;

// On the last page stands one category, on the first all others.
int pageOf(qint32 type)
{
    return type == highestType ? pageCount - 1 : 0;
}

// Where the project tree finds its pages.
class Arrangement
{
public:
    Arrangement()
    {
        setSettingsFile(m_folder.filePath(u"settings.ini"_s));
        QList<PageArrangement::Place> places;
        for (qint32 type = lowestType; type <= highestType; ++type)
            places.append({displayName(type), pageOf(type)});
        PageArrangement::save(places);
    }

private:
    QTemporaryDir m_folder;
};

class Peer final : public QTreeWidget
{
public:
    explicit Peer(const ImageList &pictures)
    {
        header()->hide();
        setUniformRowHeights(true);
        QTreeWidgetItem *device =
            item(u"Device"_s, u"Device"_s, PageArrangement::deviceTag, pictures);
        QList<QTreeWidgetItem *> pages;
        for (int page = 0; page < pageCount; ++page) {
            pages.append(item(PageArrangement::pageCaption(page), u"Page"_s,
                              page + PageArrangement::pageTag, pictures));
        }
        for (qint32 type = lowestType; type <= highestType; ++type)
            pages.at(pageOf(type))
                ->addChild(item(displayName(type), displayName(type), type, pictures));
        device->addChildren(pages);
        addTopLevelItem(device);
        device->setExpanded(true);
        for (QTreeWidgetItem *page : std::as_const(pages))
            page->setExpanded(true);
    }

private:
    static QTreeWidgetItem *item(const QString &text, const QString &picture, qint32 tag,
                                 const ImageList &pictures)
    {
        auto *made = new QTreeWidgetItem({text});
        made->setIcon(0, pictures.Picture(picture));
        made->setData(0, Qt::UserRole, tag);
        return made;
    }
};

// From nothing to the painted tree; its end does not count.
template <typename Tree, typename... Arguments>
double timeOpening(Arguments &...arguments)
{
    std::unique_ptr<Tree> tree;
    return timed([&] {
        tree = std::make_unique<Tree>(arguments...);
        tree->resize(300, 600);
        auto *view = dynamic_cast<QTreeView *>(tree.get());
        if (!view)
            view = tree->template findChild<QTreeView *>();
        PaintWatch watch(*view->viewport());
        tree->show();
        if (!watch.finishPainting())
            qFatal("the tree was not painted");
    });
}

void checkTree(const QString &name, const QTreeView &view)
{
    const QModelIndex device = view.model()->index(0, 0);
    const QModelIndex last = view.model()->index(pageCount - 1, 0, device);
    checkEqual(u"the %1 has all pages"_s.arg(name), view.model()->rowCount(device), pageCount);
    checkEqual(u"the %1 has the category on its last page"_s.arg(name),
               view.model()->index(0, 0, last).data().toString(), displayName(highestType));
    check(u"the %1 is expanded"_s.arg(name), view.isExpanded(device) && view.isExpanded(last));
    check(u"the %1 has pictures"_s.arg(name),
          !last.data(Qt::DecorationRole).value<QIcon>().isNull());
}

void checkWork()
{
    const Arrangement arrangement;
    ImageList pictures;
    Pictures::fillInto(pictures);
    const ORVTreeview ours;
    checkTree(u"project tree"_s, *ours.findChild<QTreeView *>());
    const Peer peer(pictures);
    checkTree(u"tree widget"_s, peer);
}

void measure()
{
    const Arrangement arrangement;
    ImageList pictures;
    Pictures::fillInto(pictures);
    const Sides sides = sideBySide(
        repetitions, [] { return timeOpening<ORVTreeview>(); },
        [&] { return timeOpening<Peer>(pictures); });
    printRow({.name = u"A tree of 1,000 pages and 13 categories opens"_s,
              .ours = medianOf(u"project tree"_s, sides.ours),
              .peers = medianOf(u"tree widget"_s, sides.peers),
              .bound = 1});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
