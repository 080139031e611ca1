#include <ORVTListview/HoverAnswer.h>

#include "members/HandedClass.h"
#include "members/MemberEntries.h"

namespace ORVTListview {

using namespace MemberEntries;
using namespace Qt::StringLiterals;

namespace {

using Answer = HoverAnswer;

const MemberTable &answerTable()
{
    static const MemberTable table(
        u"HoverAnswer"_s,
        {
            readWrite<&Answer::text, &Answer::setText>(u"text"),
            readWrite<&Answer::name, &Answer::setName>(u"name"),
            readWrite<&Answer::kind, &Answer::setKind>(u"kind"),
            readWrite<&Answer::value, &Answer::setValue>(u"value"),
            readWrite<&Answer::unit, &Answer::setUnit>(u"unit"),
            readWrite<&Answer::description, &Answer::setDescription>(u"description"),
            readOnly<&Answer::isEmpty>(u"isEmpty"),
        });
    return table;
}

const HandedClass handed(QMetaType::fromType<HoverAnswer *>(), &answerTable);

} // namespace

} // namespace ORVTListview
