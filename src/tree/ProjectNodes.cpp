#include "tree/ProjectNodes.h"

#include "base/ShortInteger.h"
#include "shared/texts/TextTable.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/Nodes.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

const QString deviceName = u"Device"_s;
const QString pagePicture = u"Page"_s;

std::optional<qint32> tagOf(const Node &node)
{
    if (!node.Tag().isValid())
        return std::nullopt;
    try {
        return toShortInteger(node.Tag(), u"ProjectNodes"_s);
    } catch (const Error &) {
        return std::nullopt;
    }
}

bool isCategoryKey(const QString &key)
{
    for (qint32 type = lowestType; type <= highestType; ++type) {
        if (displayName(type) == key)
            return true;
    }
    return false;
}

} // namespace

ProjectNodes::ProjectNodes(NodeTree &tree)
    : m_tree(tree)
{
}

void ProjectNodes::build(const QList<Pages> &pages)
{
    Nodes &nodes = *m_tree.Nodes();
    nodes.Clear();
    const NodeTree::Filling filling(m_tree, pages.size() + highestType + 1);
    Node *device = nodes.Add(nullptr, NodeRelationship::First, deviceName,
                             shownText(deviceName, deviceName), deviceName);
    for (qint32 number = 0; number < pages.size(); ++number) {
        const Pages &content = pages.at(number);
        Node *page = addPage(number, device);
        for (qsizetype i = 0; i < content.Index.size(); ++i)
            addCategory(content.Index.at(i), content.Key.at(i), page);
        page->setExpanded(true);
    }
    device->setTag(PageArrangement::deviceTag);
    device->setExpanded(true);
}

Node *ProjectNodes::addPage(qint32 page, Node *device)
{
    const QString key = PageArrangement::pageKey(page);
    const QString caption = PageArrangement::pageCaption(page);
    Node *node =
        m_tree.Nodes()->Add(device, NodeRelationship::Child, key,
                            caption.isEmpty() ? QString() : shownText(key, caption), pagePicture);
    node->setTag(page + PageArrangement::pageTag);
    return node;
}

void ProjectNodes::addCategory(LwType type, const QString &key, Node *page)
{
    Node *node = m_tree.Nodes()->Add(page, NodeRelationship::Child, key,
                                     shownText(key, displayName(type)), key);
    node->setTag(static_cast<qint32>(type));
}

QString ProjectNodes::shownText(const QString &key, const QString &english)
{
    QString text = Localise(english);
    m_shown.insert(key, text);
    return text;
}

void ProjectNodes::localise()
{
    localise(deviceName, deviceName);
    for (qint32 page = 0; page < PageArrangement::namedPages; ++page)
        localise(PageArrangement::pageKey(page), PageArrangement::pageCaption(page));
    for (qint32 type = lowestType; type <= highestType; ++type)
        localise(displayName(type), displayName(type));
}

void ProjectNodes::localise(const QString &key, const QString &english)
{
    const Nodes &nodes = *m_tree.Nodes();
    if (!nodes.Contains(key))
        return;
    Node *node = nodes.Item(key);
    if (m_shown.contains(key) && node->Text() == m_shown.value(key))
        node->setText(shownText(key, english));
}

Node *ProjectNodes::device() const
{
    const Nodes &nodes = *m_tree.Nodes();
    return nodes.Count() > 0 ? nodes.Item(1) : nullptr;
}

QList<PageArrangement::Place> ProjectNodes::places() const
{
    QList<PageArrangement::Place> places;
    const Node *root = device();
    qint32 number = 0;
    for (const Node *page = root ? root->Child() : nullptr; page; page = page->Next()) {
        for (const Node *node = page->Child(); node; node = node->Next()) {
            if (isCategoryKey(node->Key()))
                places.append({node->Key(), number});
        }
        ++number;
    }
    return places;
}

std::optional<LwType> ProjectNodes::categoryOf(const Node &node)
{
    const std::optional<qint32> tag = tagOf(node);
    if (!tag || !isType(*tag))
        return std::nullopt;
    return static_cast<LwType>(*tag);
}

bool ProjectNodes::isPage(const Node &node)
{
    return tagOf(node).value_or(PageArrangement::deviceTag) >= PageArrangement::pageTag;
}

bool ProjectNodes::isPoint(const Node &node)
{
    const Node *above = node.Parent();
    while (above && !categoryOf(*above))
        above = above->Parent();
    return above;
}

Node *ProjectNodes::pageOf(Node &node)
{
    Node *page = categoryOf(node) ? node.Parent() : &node;
    return page && isPage(*page) ? page : nullptr;
}

bool ProjectNodes::canAddPage() const
{
    const Node *root = device();
    return root && root->Children() < PageArrangement::namedPages &&
           !m_tree.Nodes()->Contains(PageArrangement::pageKey(root->Children()));
}

Node *ProjectNodes::addPage()
{
    Node *root = device();
    Node *page = addPage(root->Children(), root);
    page->setExpanded(true);
    return page;
}

void ProjectNodes::move(Node &category, Node &page)
{
    const std::optional<LwType> type = categoryOf(category);
    Node *behind = page.Child(); // the first category that belongs behind it
    while (behind && (behind == &category || categoryOf(*behind) <= type))
        behind = behind->Next();
    if (behind)
        category.MoveTo(behind, NodeRelationship::Previous);
    else
        category.MoveTo(&page, NodeRelationship::Child);
}

} // namespace ORVTListview
