#include "project/JsonEdit.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

// As JSON writes it, with its quotes.
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

} // namespace

void JsonEdit::replace(const JsonPlace &place, const QString &text)
{
    m_changes.append({place.start(), place.end(), quoted(text)});
}

// From the last to the first, so that the places before stay true.
QByteArray JsonEdit::bytes() const
{
    QList<Change> changes = m_changes;
    std::ranges::sort(changes, std::greater(), &Change::start);
    QByteArray bytes = m_json;
    for (const Change &change : std::as_const(changes))
        bytes.replace(change.start, change.end - change.start, change.value);
    return bytes;
}

} // namespace ORVTListview
