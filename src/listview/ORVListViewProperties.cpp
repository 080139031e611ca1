// The design-time properties in the host's keeping.

#include <ORVTListview/ORVListView.h>

#include "base/Failure.h"
#include "listview/ListViewFaces.h"
#include "shared/points/DisplayNames.h"
#include "widgets/component/BagReader.h"

#include <ORVTListview/PropertyBag.h>

#include <QtCore/QPointer>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr LwType defaultType = dsInput;

LwType storedType(const QVariant &value)
{
    bool isNumber = false;
    const qlonglong type = value.toLongLong(&isNumber);
    const bool isStoredType = isNumber && type >= lowestType && type <= highestType;
    return isStoredType ? static_cast<LwType>(type) : defaultType;
}

} // namespace

void ORVListView::ReadProperties(const PropertyBag &Bag)
{
    const auto read = bagReader(Bag, u"ORVListView.ReadProperties"_s);
    const QString caption = read(u"Caption"_s, QString()).toString();
    const bool isEnabled = read(u"Enabled"_s, true).toBool();
    const LwType type = storedType(read(u"ListviewType"_s, qint32{defaultType}));
    const bool isMultiple = read(u"MultiSelect"_s, false).toBool();
    const QPointer<ORVListView> self(this); // the host hears of each
    setCaption(caption);
    if (self)
        setMultiSelect(isMultiple);
    if (self)
        setListviewType(type);
    if (self)
        setEnabled(isEnabled); // last, because a switch enables its face
}

void ORVListView::WriteProperties(PropertyBag &Bag) const
{
    raisingErrors(u"ORVListView.WriteProperties"_s, [&] {
        Bag.WriteProperty(u"Caption"_s, Caption(), QString());
        Bag.WriteProperty(u"Enabled"_s, Enabled(), true);
        Bag.WriteProperty(u"ListviewType"_s, qint32{ListviewType()}, qint32{defaultType});
        Bag.WriteProperty(u"MultiSelect"_s, MultiSelect(), false);
    });
}

} // namespace ORVTListview
