#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/DataObject.h>
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

qint16 formatNumber(const DataObject &, const QString &mimeType)
{
    return DataObject::FormatNumber(mimeType);
}

QString mimeType(const DataObject &, qint16 format)
{
    return DataObject::MimeType(format);
}

QList<Member> dataMembers()
{
    const auto text = optional(u"Format", QVariant::fromValue(qint16{DataObject::Text}));
    return {
        method<&DataObject::GetFormat>(u"GetFormat", u"Format"),
        method<&DataObject::GetData>(u"GetData", u"Format"),
        method<&DataObject::SetData>(u"SetData", optional(u"Value"), text),
        method<&DataObject::Clear>(u"Clear"),
        method<&formatNumber>(u"FormatNumber", u"MimeType"),
        method<&mimeType>(u"MimeType", u"Format"),
    };
}

QList<MemberFacts> facts()
{
    return {
        {.name = u"GetData"_s, .failures = {InvalidCall}},
        {.name = u"SetData"_s, .failures = {InvalidCall, TypeMismatch}},
        {.name = u"Clear"_s, .failures = {InvalidCall}},
    };
}

const HandedClass handed(QMetaType::fromType<DataObject *>(), &dataMembers, &facts);

} // namespace

} // namespace ORVTListview
