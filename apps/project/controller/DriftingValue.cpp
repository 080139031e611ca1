#include "project/controller/DriftingValue.h"

#include <algorithm>
#include <cmath>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QVariant DriftingValue::next(const QVariant &last)
{
    if (last.typeId() == QMetaType::Double) {
        const double value = last.toDouble();
        const double drift = std::max(std::abs(value) * 0.02, 0.1);
        return std::round((value + (m_random.generateDouble() * 2 - 1) * drift) * 10) / 10;
    }
    const QString text = last.toString();
    if (text != u"On"_s && text != u"Off"_s)
        return last;
    const bool changes = m_random.bounded(8) == 0;
    return changes == (text == u"On"_s) ? u"Off"_s : u"On"_s;
}

} // namespace ORVTListview
