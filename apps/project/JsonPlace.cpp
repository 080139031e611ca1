#include "project/JsonPlace.h"

#include "project/ProjectError.h"
#include "project/ProjectTexts.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>
#include <limits>
#include <utility>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

[[noreturn]] void failAt(const QString &file, const QString &place, const QString &reason)
{
    const QString where = place.isEmpty() ? file : u"%1: %2"_s.arg(file, place);
    throw Error(ProjectNotValid, u"readProject"_s, u"%1: %2"_s.arg(where, reason));
}

QString lineAndColumn(const QByteArray &json, qsizetype offset)
{
    const QByteArrayView before = QByteArrayView(json).first(std::min(offset, json.size()));
    const qsizetype column = before.size() - before.lastIndexOf('\n');
    return ProjectTexts::tr("line %1, column %2")
        .arg(QString::number(before.count('\n') + 1), QString::number(column));
}

} // namespace

JsonPlace::JsonPlace(QString file, QString place, QJsonValue value)
    : m_file(std::move(file))
    , m_place(std::move(place))
    , m_value(std::move(value))
{
}

JsonPlace JsonPlace::parse(const QByteArray &json, const QString &fileName)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        failAt(fileName, lineAndColumn(json, error.offset), error.errorString());
    if (!document.isObject())
        failAt(fileName, {}, ProjectTexts::tr("an object is expected"));
    return {fileName, {}, document.object()};
}

const JsonPlace &JsonPlace::required() const
{
    if (!isPresent())
        fail(ProjectTexts::tr("is missing"));
    return *this;
}

JsonPlace JsonPlace::member(const QString &name) const
{
    if (isPresent() && !m_value.isObject())
        fail(ProjectTexts::tr("an object is expected"));
    const QString place = m_place.isEmpty() ? name : u"%1, %2"_s.arg(m_place, name);
    if (!isPresent())
        return {m_file, place, QJsonValue::Undefined};
    return {m_file, place, m_value.toObject().value(name)};
}

void JsonPlace::allowOnly(const QStringList &members) const
{
    if (isPresent() && !m_value.isObject())
        fail(ProjectTexts::tr("an object is expected"));
    const QStringList present = m_value.toObject().keys();
    for (const QString &name : present) {
        if (!members.contains(name))
            member(name).fail(ProjectTexts::tr("is not known here"));
    }
}

QList<JsonPlace> JsonPlace::items(qsizetype atMost) const
{
    if (!isPresent())
        return {};
    if (!m_value.isArray())
        fail(ProjectTexts::tr("an array is expected"));
    const QJsonArray array = m_value.toArray();
    if (array.size() > atMost)
        fail(ProjectTexts::tr("holds more than %1 elements").arg(atMost));
    QList<JsonPlace> result;
    for (const QJsonValue value : array)
        result.append(
            {m_file, u"%1 #%2"_s.arg(m_place, QString::number(result.size() + 1)), value});
    return result;
}

QString JsonPlace::text(const QString &absent) const
{
    if (!isPresent())
        return absent;
    if (!m_value.isString())
        fail(ProjectTexts::tr("a text is expected"));
    return m_value.toString();
}

bool JsonPlace::boolean(bool absent) const
{
    if (!isPresent())
        return absent;
    if (!m_value.isBool())
        fail(ProjectTexts::tr("true or false is expected"));
    return m_value.toBool();
}

qint32 JsonPlace::integer(qint32 absent) const
{
    using Limits = std::numeric_limits<qint32>;
    if (!isPresent())
        return absent;
    const double value = m_value.toDouble(std::nan(""));
    if (!(value >= Limits::min() && value <= Limits::max()) || value != std::floor(value))
        fail(ProjectTexts::tr("a whole number of 32 bits is expected"));
    return static_cast<qint32>(value);
}

double JsonPlace::number() const
{
    if (!m_value.isDouble())
        fail(ProjectTexts::tr("a number is expected"));
    return m_value.toDouble();
}

void JsonPlace::fail(const QString &reason) const
{
    failAt(m_file, m_place, reason);
}

} // namespace ORVTListview
