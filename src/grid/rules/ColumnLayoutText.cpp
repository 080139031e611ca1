#include "grid/rules/ColumnLayoutText.h"

#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include <cstdlib>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString columnLayoutText(const QList<ColumnPlace> &columns)
{
    QStringList parts;
    for (const ColumnPlace &column : columns) {
        const QString key = QString::fromLatin1(QUrl::toPercentEncoding(column.key, " #"));
        const int width = column.isHidden ? -column.width : column.width;
        parts.append(key + u':' + QString::number(width));
    }
    return parts.join(u';');
}

QList<ColumnPlace> columnsOfLayoutText(const QString &text)
{
    constexpr int widest = 1'000'000; // as columns are at most
    QList<ColumnPlace> columns;
    for (const QString &part : text.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype colon = part.indexOf(u':');
        bool isNumber = false;
        const int width = part.mid(colon + 1).toInt(&isNumber);
        if (colon > 0 && isNumber && width != 0 && width >= -widest && width <= widest)
            columns.append({QUrl::fromPercentEncoding(part.first(colon).toUtf8()), std::abs(width),
                            width < 0});
    }
    return columns;
}

} // namespace ORVTListview
