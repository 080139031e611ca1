#include "tree/rules/TypeCollections.h"

#include "shared/points/DisplayNames.h"

#include <array>

namespace ORVTListview::TypeCollections {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<LwType, highestType + 1> order{
    dsVariable, dsConst, dsInput,      dsOutput, dsInputParam, dsOutputParam, dsLog,
    dsOs,       dsTimer, dsController, dsNvi,    dsNvo,        dsCode,
};

} // namespace

KeyedCollection<QString> names()
{
    KeyedCollection<QString> collection;
    for (const LwType type : order)
        collection.Add(displayName(type), u"Key"_s + QString::number(type));
    return collection;
}

KeyedCollection<qint32> values()
{
    KeyedCollection<qint32> collection;
    for (const LwType type : order)
        collection.Add(type, displayName(type));
    return collection;
}

} // namespace ORVTListview::TypeCollections
