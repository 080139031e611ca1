#include "widgets/input/DraggedNames.h"

#include "base/Utf8Text.h"

#include <QtCore/QMimeData>
#include <QtCore/QStringList>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString DraggedNames::format()
{
    return u"application/x-orvtlistview-names"_s;
}

void DraggedNames::add(QMimeData &data, const QStringList &names)
{
    QStringList given;
    for (const QString &name : names) {
        if (!name.trimmed().isEmpty())
            given.append(name);
    }
    if (!given.isEmpty())
        data.setData(format(), given.join(u' ').toUtf8());
}

std::optional<QString> DraggedNames::in(const QMimeData &data)
{
    if (!data.hasFormat(format()))
        return {};
    return utf8Text(data.data(format()));
}

} // namespace ORVTListview
