#include <ORVTListview/HoverAnswer.h>

#include "members/HandedClass.h"
#include "members/MemberEntries.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Answer = HoverAnswer;

QList<Member> allMembers()
{
    return {
        readWrite<&Answer::text, &Answer::setText>(u"text"),
        readWrite<&Answer::name, &Answer::setName>(u"name"),
        readWrite<&Answer::kind, &Answer::setKind>(u"kind"),
        readWrite<&Answer::value, &Answer::setValue>(u"value"),
        readWrite<&Answer::unit, &Answer::setUnit>(u"unit"),
        readWrite<&Answer::description, &Answer::setDescription>(u"description"),
        readOnly<&Answer::isEmpty>(u"isEmpty"),
    };
}

const HandedClass handed(QMetaType::fromType<HoverAnswer *>(), &allMembers);

} // namespace

} // namespace ORVTListview
