#include "widgets/view/ViewMembers.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

QList<Member> rowMembers()
{
    return {
        readWrite<&ListItem::Tag, &ListItem::setTag>(u"Tag"),
        method<&ListItem::SubItem>(u"SubItem", u"Index"),
        method<&ListItem::setSubItem>(u"setSubItem", u"Index", u"Text"),
        method<&ListItem::SubItemTag>(u"SubItemTag", u"Index"),
        method<&ListItem::setSubItemTag>(u"setSubItemTag", u"Index", u"Tag"),
        readWrite<&ListItem::PictureKey, &ListItem::setPictureKey>(u"PictureKey"),
        readWrite<&ListItem::foreground, &ListItem::setForeground>(u"foreground"),
        readWrite<&ListItem::Selected, &ListItem::setSelected>(u"Selected"),
        readWrite<&ListItem::Checked, &ListItem::setChecked>(u"Checked"),
        readWrite<&ListItem::Visible, &ListItem::setVisible>(u"Visible"),
        method<&ListItem::EnsureVisible>(u"EnsureVisible"),
    };
}

QList<MemberFacts> subItemFacts()
{
    const QString columns = u"1 to the number of columns less 1"_s;
    const QList<qint32> failures{SubscriptOutOfRange, ObjectNotSet};
    return {
        {.name = u"SubItem"_s, .range = columns, .failures = failures},
        {.name = u"setSubItem"_s, .range = columns, .failures = failures},
        {.name = u"SubItemTag"_s, .range = columns, .failures = failures},
        {.name = u"setSubItemTag"_s, .range = columns, .failures = failures},
    };
}

QList<MemberFacts> goneFacts(const QStringList &names)
{
    QList<MemberFacts> facts;
    for (const QString &name : names)
        facts.append({.name = name, .failures = {ObjectNotSet}});
    return facts;
}

QList<MemberFacts> itemFacts()
{
    static const QStringList plain{u"Tag"_s,     u"PictureKey"_s, u"foreground"_s,   u"Selected"_s,
                                   u"Checked"_s, u"Visible"_s,    u"EnsureVisible"_s};
    return elementFacts() + subItemFacts() + goneFacts(plain);
}

QList<Member> itemsMembers()
{
    return collectionMembers<ListItems>() +
           QList{method<&ListItems::Add>(u"Add", optional(u"Index"), optional(u"Key"),
                                         optional(u"Text"))};
}

QList<MemberFacts> itemsFacts()
{
    return collectionFacts() + QList<MemberFacts>{{.name = u"Add"_s,
                                                   .range = u"0 to Count() + 1"_s,
                                                   .failures = {InvalidCall, SubscriptOutOfRange}}};
}

QList<Member> columnMembers()
{
    return elementMembers<ColumnHeader>() +
           QList{
               readWrite<&ColumnHeader::Width, &ColumnHeader::setWidth>(u"Width"),
               readWrite<&ColumnHeader::alignment, &ColumnHeader::setAlignment>(u"alignment"),
               readWrite<&ColumnHeader::Visible, &ColumnHeader::setVisible>(u"Visible"),
           };
}

QList<MemberFacts> columnFacts()
{
    return elementFacts() + goneFacts({u"alignment"_s, u"Visible"_s}) +
           QList<MemberFacts>{{.name = u"Width"_s,
                               .unit = u"twip"_s,
                               .range = u"0 and up"_s,
                               .failures = {InvalidCall, ObjectNotSet}}};
}

QList<Member> columnsMembers()
{
    static const auto left = QVariant::fromValue(Qt::Alignment(Qt::AlignLeft));
    return collectionMembers<ColumnHeaders>() +
           QList{method<&ColumnHeaders::Add>(
               u"Add", optional(u"Index"), optional(u"Key"), optional(u"Text"),
               optional(u"Width", ColumnHeaders::defaultWidth), optional(u"Alignment", left))};
}

QList<MemberFacts> columnsFacts()
{
    return collectionFacts() +
           QList<MemberFacts>{{.name = u"Add"_s,
                               .unit = u"Width: twip"_s,
                               .range = u"Index: 0 to Count() + 1; Width: 0 and up"_s,
                               .failures = {InvalidCall, SubscriptOutOfRange}}};
}

const HandedClass handedItem(QMetaType::fromType<ListItem *>(),
                             &together<elementMembers<ListItem>, rowMembers>, &itemFacts);
const HandedClass handedItems(QMetaType::fromType<ListItems *>(), &itemsMembers, &itemsFacts);
const HandedClass handedColumn(QMetaType::fromType<ColumnHeader *>(), &columnMembers, &columnFacts);
const HandedClass handedColumns(QMetaType::fromType<ColumnHeaders *>(), &columnsMembers,
                                &columnsFacts);

} // namespace

} // namespace ORVTListview
