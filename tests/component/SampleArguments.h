#pragma once

#include <ORVTListview/MemberTable.h>
#include <ORVTListview/Types.h>

// Arguments that any member can be called with.
namespace SampleArguments {

// A text is also a truth value and a number.
inline QVariant one(QMetaType type)
{
    if (type.id() == QMetaType::QString)
        return QStringLiteral("1");
    if (type == QMetaType::fromType<ORVTListview::LwType>())
        return qint32{ORVTListview::dsInput};
    return type.id() == QMetaType::Bool ? QVariant(true) : QVariant(type);
}

inline QVariantList all(const ORVTListview::Member &member)
{
    QVariantList arguments;
    for (const ORVTListview::MemberArgument &argument : member.arguments)
        arguments.append(one(argument.type));
    return arguments;
}

} // namespace SampleArguments
