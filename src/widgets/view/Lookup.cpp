#include "widgets/view/Lookup.h"

#include <ORVTListview/Error.h>

namespace ORVTListview::Lookup {

using namespace Qt::StringLiterals;

void checkIndex(const QString &member, const QString &kind, qint32 index, qint32 count)
{
    if (index < 1 || index > count)
        throw Error(SubscriptOutOfRange, member,
                    u"There is no %1 %2"_s.arg(kind, QString::number(index)));
}

void checkKeyIsFree(const QString &member, const QString &key, bool isUsed)
{
    if (isUsed)
        throw Error(InvalidCall, member, u"The key \"%1\" is in use already"_s.arg(key));
}

void refuseKey(const QString &member, const QString &kind, const QString &key)
{
    throw Error(InvalidCall, member, u"There is no %1 with the key \"%2\""_s.arg(kind, key));
}

} // namespace ORVTListview::Lookup
