#include "widgets/view/ViewMembers.h"
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

QList<Member> placeMembers()
{
    return {
        readWrite<&Node::Parent, &Node::setParent>(u"Parent"),
        readOnly<&Node::Child>(u"Child"),
        readOnly<&Node::Children>(u"Children"),
        readOnly<&Node::Next>(u"Next"),
        readOnly<&Node::Previous>(u"Previous"),
        method<&Node::MoveTo>(
            u"MoveTo", u"Relative",
            optional(u"Relationship", QVariant::fromValue(NodeRelationship::Child))),
        method<&Node::EnsureVisible>(u"EnsureVisible"),
    };
}

QList<Member> lookMembers()
{
    return {
        readWrite<&Node::Image, &Node::setImage>(u"Image"),
        readWrite<&Node::Tag, &Node::setTag>(u"Tag"),
        readWrite<&Node::Expanded, &Node::setExpanded>(u"Expanded"),
        readWrite<&Node::ForeColor, &Node::setForeColor>(u"ForeColor"),
        readWrite<&Node::Checked, &Node::setChecked>(u"Checked"),
        readWrite<&Node::Selected, &Node::setSelected>(u"Selected"),
    };
}

QList<MemberFacts> placeFacts()
{
    const QList<qint32> gone{ObjectNotSet};
    return {
        {.name = u"Parent"_s, .failures = {InvalidCall, ObjectNotSet}},
        {.name = u"Child"_s, .failures = gone},
        {.name = u"Children"_s, .unit = u"nodes"_s, .failures = gone},
        {.name = u"Next"_s, .failures = gone},
        {.name = u"Previous"_s, .failures = gone},
        {.name = u"MoveTo"_s, .failures = {InvalidCall, ObjectNotSet}},
        {.name = u"EnsureVisible"_s, .failures = gone},
    };
}

QList<MemberFacts> lookFacts()
{
    const QList<qint32> gone{ObjectNotSet};
    return {
        {.name = u"Image"_s, .failures = gone},
        {.name = u"Tag"_s, .failures = gone},
        {.name = u"Expanded"_s, .failures = gone},
        {.name = u"ForeColor"_s, .unit = u"colour"_s, .failures = gone},
        {.name = u"Checked"_s, .failures = gone},
        {.name = u"Selected"_s, .failures = gone},
    };
}

// Relative is a node, the key of one, or nothing for the top level.
Node *addNode(Nodes &nodes, const QVariant &relative, NodeRelationship relationship,
              const QString &key, const QString &text, const QString &image)
{
    if (relative.metaType().id() == QMetaType::QString)
        return nodes.Add(relative.toString(), relationship, key, text, image);
    const bool isNode = !relative.isValid() || relative.canConvert<Node *>();
    if (!isNode && relative.metaType().id() != QMetaType::Nullptr)
        throw Error(TypeMismatch, u"Nodes.Add"_s, u"A node or a key is needed"_s);
    return nodes.Add(relative.value<Node *>(), relationship, key, text, image);
}

QList<Member> nodesMembers()
{
    return collectionMembers<Nodes>() +
           QList{method<&Nodes::Contains>(u"Contains", u"Key"),
                 method<&addNode>(u"Add", u"Relative", u"Relationship", optional(u"Key"),
                                  optional(u"Text"), optional(u"Image"))};
}

QList<MemberFacts> nodesFacts()
{
    return collectionFacts() +
           QList<MemberFacts>{
               {.name = u"Add"_s, .failures = {InvalidCall, TypeMismatch, ObjectNotSet}}};
}

const HandedClass handedNode(QMetaType::fromType<Node *>(),
                             &together<elementMembers<Node>, placeMembers, lookMembers>,
                             &together<elementFacts, placeFacts, lookFacts>);
const HandedClass handedNodes(QMetaType::fromType<Nodes *>(), &nodesMembers, &nodesFacts);

} // namespace

} // namespace ORVTListview
