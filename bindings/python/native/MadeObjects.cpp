#include "native/MadeObjects.h"

#include "native/PythonPoints.h"

#include <ORVTListview/ImageList.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/KeyedCollection.h>
#include <ORVTListview/PointCollection.h>

using namespace ORVTListview;

namespace MadeObjects {

namespace {

template <typename Seen, typename Made>
void hold(std::shared_ptr<Made> made, QVariant &held, Life &life)
{
    held = QVariant::fromValue<Seen *>(made.get());
    life = Life::owning(made);
}

} // namespace

bool make(QMetaType type, PyObject *object, QVariant &held, Life &life)
{
    if (type == QMetaType::fromType<PointList *>())
        hold<PointList>(std::make_shared<PointList>(), held, life);
    else if (type == QMetaType::fromType<IndexedNameList *>())
        hold<IndexedNameList>(std::make_shared<IndexedNameList>(), held, life);
    else if (type == QMetaType::fromType<ImageList *>())
        hold<ImageList>(std::make_shared<ImageList>(), held, life);
    else if (type == QMetaType::fromType<PointCollection *>())
        hold<PointCollection>(std::make_shared<PythonPoints>(object), held, life);
    else if (type == QMetaType::fromType<KeyedCollection<QString>>() ||
             type == QMetaType::fromType<KeyedCollection<qint32>>())
        held = QVariant(type), life = Life::owning(std::make_shared<char>());
    else
        return false;
    return true;
}

} // namespace MadeObjects
