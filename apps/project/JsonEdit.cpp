#include "project/JsonEdit.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

namespace ORVTListview {

QByteArray jsonText(const QVariant &value)
{
    const QJsonArray array{QJsonValue::fromVariant(value)};
    const QByteArray text = QJsonDocument(array).toJson(QJsonDocument::Compact);
    return text.sliced(1, text.size() - 2);
}

void JsonEdit::replace(const JsonPlace &place, const QVariant &value)
{
    replaceBytes(place.start(), place.end(), jsonText(value));
}

void JsonEdit::replaceBytes(qsizetype start, qsizetype end, const QByteArray &bytes)
{
    m_changes.append({start - m_first, end - m_first, bytes});
}

QByteArray JsonEdit::bytes() const
{
    QList<Change> changes = m_changes;
    std::ranges::stable_sort(changes, {}, &Change::start);
    QByteArray bytes;
    qsizetype done = 0;
    for (const Change &change : std::as_const(changes)) {
        bytes += m_json.sliced(done, change.start - done) + change.bytes;
        done = change.end;
    }
    return bytes + m_json.sliced(done);
}

} // namespace ORVTListview
