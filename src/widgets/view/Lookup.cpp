#include "widgets/view/Lookup.h"

#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString CalledMember::name() const
{
    return object.toString() + u'.' + QLatin1StringView(member);
}

namespace Lookup {

void checkIndex(const CalledMember &member, QStringView kind, qint32 index, qint32 count)
{
    if (index < 1 || index > count)
        throw Error(SubscriptOutOfRange, member.name(),
                    u"There is no %1 %2"_s.arg(kind, QString::number(index)));
}

void checkKeyIsFree(const CalledMember &member, const QString &key, bool isUsed)
{
    if (isUsed)
        throw Error(InvalidCall, member.name(), u"The key \"%1\" is in use already"_s.arg(key));
}

void refuseKey(const CalledMember &member, QStringView kind, const QString &key)
{
    throw Error(InvalidCall, member.name(), u"There is no %1 with the key \"%2\""_s.arg(kind, key));
}

int newPosition(const CalledMember &member, QStringView kind, qint32 index, qint32 count)
{
    if (index == 0)
        return count;
    checkIndex(member, kind, index, count + 1);
    return index - 1;
}

} // namespace Lookup
} // namespace ORVTListview
