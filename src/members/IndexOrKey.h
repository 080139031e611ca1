#pragma once

#include <ORVTListview/Error.h>

#include <QtCore/QVariant>

namespace ORVTListview::MemberEntries {

// Late-bound calls give an index or a key in one argument: a text is a key. Gives it to
// the overload that it is for.
template <typename Answer>
auto byIndexOrKey(const QVariant &which, const QString &member, Answer answer)
{
    if (which.metaType().id() == QMetaType::QString)
        return answer(which.toString());
    bool isNumber = false;
    const qint32 index = which.toInt(&isNumber);
    if (!isNumber)
        throw Error(TypeMismatch, member, QStringLiteral("An index or a key is needed"));
    return answer(index);
}

} // namespace ORVTListview::MemberEntries
