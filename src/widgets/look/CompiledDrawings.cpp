#include "widgets/look/CompiledDrawings.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr auto place = ":/ORVTListview/pictures/"_L1;
constexpr auto ending = ".svg"_L1;

} // namespace

QString CompiledDrawings::fileOf(const QString &name)
{
    return place + name + ending;
}

std::shared_ptr<const Drawing> CompiledDrawings::of(const QString &file)
{
    if (!file.startsWith(place) || !file.endsWith(ending))
        return {};
    // One for a thread, since an outline caches while it is painted.
    thread_local const QHash<QString, std::shared_ptr<const Drawing>> drawings = all();
    return drawings.value(file.mid(place.size()).chopped(ending.size()));
}

} // namespace ORVTListview
