#include "TypeDescription.h"

#include <QtCore/QAssociativeIterable>
#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtCore/QMetaProperty>
#include <QtCore/QRegularExpression>
#include <QtCore/QSequentialIterable>

using namespace Qt::StringLiterals;

namespace {

QString plainName(QMetaType type)
{
    QString name = QString::fromLatin1(type.name());
    name.remove(u"ORVTListview::"_s);
    static const QRegularExpression shortWord(u"\\bshort\\b"_s);
    static const QRegularExpression intWord(u"\\bint\\b"_s);
    name.replace(shortWord, u"qint16"_s).replace(intWord, u"qint32"_s);
    return name == u"QFlags<Qt::AlignmentFlag>"_s ? u"Qt::Alignment"_s : name;
}

bool isOwn(QMetaType type)
{
    return QByteArray(type.name()).startsWith("ORVTListview::");
}

// Of a list its items', of a map its values'; none for others.
QMetaType heldType(QMetaType type)
{
    QVariant made(type);
    if (type.id() < QMetaType::User)
        return {};
    if (QMetaType::canView(type, QMetaType::fromType<QSequentialIterable>()))
        return made.view<QSequentialIterable>().valueMetaType();
    if (QMetaType::canView(type, QMetaType::fromType<QAssociativeIterable>()))
        return made.view<QAssociativeIterable>().metaContainer().mappedMetaType();
    return {};
}

// Of those that no meta-object lists.
QStringList otherNames(const QString &enumeration)
{
    static const QHash<QString, QStringList> names{
        {u"CellState"_s, {u"Plain"_s, u"Changed"_s, u"Old"_s, u"Manual"_s, u"Alarm"_s}},
        {u"ImageList::Look"_s, {u"Plain"_s, u"Pressed"_s}},
        {u"NodeRelationship"_s, {u"First"_s, u"Last"_s, u"Next"_s, u"Previous"_s, u"Child"_s}},
        {u"ProblemSeverity"_s, {u"Error"_s, u"Warning"_s, u"Hint"_s}},
    };
    return names.value(enumeration);
}

QJsonObject named(const QString &name, int value)
{
    return {{u"name"_s, name}, {u"value"_s, value}};
}

QJsonArray valuesOf(QMetaType type)
{
    QJsonArray values;
    for (const QString &other : otherNames(plainName(type)))
        values.append(named(other, static_cast<int>(values.size())));
    const QByteArray name = QByteArray(type.name()).split(':').constLast();
    const QMetaObject *meta = type.metaObject();
    const int index = meta ? meta->indexOfEnumerator(name.constData()) : -1;
    const QMetaEnum enumeration = index < 0 ? QMetaEnum() : meta->enumerator(index);
    for (int i = 0; i < enumeration.keyCount(); ++i)
        values.append(named(QString::fromLatin1(enumeration.key(i)), enumeration.value(i)));
    return values;
}

QJsonArray listed(const QMap<QString, QJsonArray> &entries, const QString &content)
{
    QJsonArray list;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        list.append(QJsonObject{{u"name"_s, entry.key()}, {content, entry.value()}});
    return list;
}

} // namespace

QString TypeDescription::name(QMetaType type)
{
    if (!type.isValid())
        return {};
    collect(type);
    return plainName(type);
}

QJsonArray TypeDescription::records() const
{
    return listed(m_records, u"fields"_s);
}

QJsonArray TypeDescription::enumerations() const
{
    return listed(m_enumerations, u"values"_s);
}

QJsonValue TypeDescription::value(const QVariant &value)
{
    if (value.metaType().flags().testFlag(QMetaType::IsEnumeration))
        return value.toInt();
    switch (value.metaType().id()) {
    case QMetaType::Bool:
    case QMetaType::QString:
        return QJsonValue::fromVariant(value);
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    default:
        return {};
    }
}

void TypeDescription::collect(QMetaType type)
{
    const QString name = plainName(type);
    if (m_records.contains(name) || m_enumerations.contains(name))
        return;
    if (const QMetaType held = heldType(type); held.isValid())
        collect(held);
    if (!isOwn(type))
        return;
    if (type.flags().testFlag(QMetaType::IsEnumeration))
        m_enumerations.insert(name, valuesOf(type));
    else if (type.flags().testFlag(QMetaType::IsGadget))
        m_records.insert(name, fields(type));
}

QJsonArray TypeDescription::fields(QMetaType record)
{
    QJsonArray list;
    const QVariant fresh(record);
    const QMetaObject &meta = *record.metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const QMetaProperty field = meta.property(i);
        list.append(QJsonObject{{u"name"_s, QString::fromLatin1(field.name())},
                                {u"type"_s, name(field.metaType())},
                                {u"default"_s, value(field.readOnGadget(fresh.constData()))}});
    }
    return list;
}
