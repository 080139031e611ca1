#include "members/HandedClass.h"
#include "members/IndexOrKey.h"
#include "members/MemberEntries.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ImageList.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

bool contains(const ImageList &images, const QVariant &which)
{
    return byIndexOrKey(which, u"ImageList.Contains"_s,
                        [&](const auto &place) { return images.Contains(place); });
}

QIcon picture(const ImageList &images, const QVariant &which)
{
    return byIndexOrKey(which, u"ImageList.Picture"_s,
                        [&](const auto &place) { return images.Picture(place); });
}

QList<Member> imageMembers()
{
    const auto plain = optional(u"Drawn", QVariant::fromValue(ImageList::Look::Plain));
    return {
        method<&ImageList::Add>(u"Add", u"Key", u"Index", u"SvgFile", plain),
        readOnly<&ImageList::Count>(u"Count"),
        readOnly<&ImageList::Keys>(u"Keys"),
        method<&contains>(u"Contains", u"IndexOrKey"),
        method<&picture>(u"Picture", u"IndexOrKey"),
        method<&ImageList::KeyOf>(u"KeyOf", u"Index"),
        method<&ImageList::IndexOf>(u"IndexOf", u"Key"),
    };
}

QList<MemberFacts> facts()
{
    return {
        {.name = u"Add"_s, .range = u"Index: 1 and up"_s, .failures = {InvalidCall}},
        {.name = u"Contains"_s, .failures = {TypeMismatch}},
        {.name = u"Picture"_s, .failures = {TypeMismatch}},
    };
}

const HandedClass handed(QMetaType::fromType<ImageList *>(), &imageMembers, &facts);

} // namespace

} // namespace ORVTListview
