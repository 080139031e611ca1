#include "ClassDescription.h"

#include <ORVTListview/LateCall.h>

#include <QtCore/QMetaProperty>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString kindName(MemberKind kind)
{
    static const QStringList names{u"property"_s, u"method"_s, u"event"_s};
    return names.at(static_cast<int>(kind));
}

QString directionName(ArgumentDirection direction)
{
    static const QStringList names{u"in"_s, u"out"_s, u"in/out"_s};
    return names.at(static_cast<int>(direction));
}

// By the meta-object, whose properties may be spelt otherwise in other letters.
QString changeSignal(const QMetaObject *meta, const QString &name)
{
    const int index = meta ? meta->indexOfProperty(name.toLatin1().constData()) : -1;
    return index < 0 ? QString() : QString::fromLatin1(meta->property(index).notifySignal().name());
}

// How a variable holds an object of the class.
QString howHeld(QMetaType type)
{
    if (!type.flags().testFlag(QMetaType::IsPointer) &&
        !type.flags().testFlag(QMetaType::PointerToQObject))
        return u"value"_s;
    if (!type.metaObject())
        return u"handle"_s;
    for (const QMetaObject *base = type.metaObject(); base; base = base->superClass()) {
        if (qstrcmp(base->className(), "ORVTListview::Component") == 0)
            return u"component"_s;
    }
    return u"object"_s;
}

} // namespace

ClassDescription::ClassDescription(QMetaType type, QObject *fresh, TypeDescription &types)
    : m_type(type)
    , m_fresh(fresh)
    , m_types(types)
    , m_members(*membersOf(type))
{
}

QJsonObject ClassDescription::json()
{
    QJsonArray members;
    for (const Member &member : m_members.members())
        members.append(described(member));
    return {
        {u"name"_s, m_members.component()},
        {u"type"_s, m_types.name(m_type)},
        {u"held"_s, howHeld(m_type)},
        {u"members"_s, members},
    };
}

QJsonObject ClassDescription::described(const Member &member)
{
    QJsonObject entry{{u"kind"_s, kindName(member.kind)}, {u"name"_s, member.name}};
    if (member.kind == MemberKind::Event)
        entry.insert(u"number"_s, member.number);
    if (member.kind == MemberKind::Property)
        addProperty(member, entry);
    else
        entry.insert(u"arguments"_s, arguments(member));
    if (member.kind == MemberKind::Method)
        entry.insert(u"result"_s, m_types.name(member.type));
    addFacts(member.name, entry);
    return entry;
}

QJsonArray ClassDescription::arguments(const Member &member)
{
    QJsonArray list;
    for (const MemberArgument &argument : member.arguments) {
        QJsonObject entry{{u"name"_s, argument.name},
                          {u"type"_s, m_types.name(argument.type)},
                          {u"direction"_s, directionName(argument.direction)}};
        // One that is left out without a value of its own is zero or empty.
        const QVariant given =
            argument.defaultValue.isValid() ? argument.defaultValue : QVariant(argument.type);
        if (argument.isOptional)
            entry.insert(u"default"_s, TypeDescription::value(given));
        list.append(entry);
    }
    return list;
}

void ClassDescription::addProperty(const Member &member, QJsonObject &entry)
{
    entry.insert(u"type"_s, m_types.name(member.type));
    entry.insert(u"get"_s, member.call != nullptr);
    entry.insert(u"put"_s, member.put != nullptr);
    const QString changed = changeSignal(m_type.metaObject(), member.name);
    if (!changed.isEmpty())
        entry.insert(u"changed"_s, changed);
    QVariantList none;
    QVariant value;
    if (!m_fresh || !member.call || callLate(*m_fresh, m_members, member.name, none, value))
        return;
    const QJsonValue plain = TypeDescription::value(value);
    const bool namesTheFont = plain.toString().startsWith(u"{\\rtf"_s);
    if (!plain.isNull() && !namesTheFont)
        entry.insert(u"default"_s, plain);
}

void ClassDescription::addFacts(const QString &name, QJsonObject &entry) const
{
    const MemberFacts facts = m_members.facts(name);
    if (!facts.unit.isEmpty())
        entry.insert(u"unit"_s, facts.unit);
    if (!facts.range.isEmpty())
        entry.insert(u"range"_s, facts.range);
    QJsonArray failures;
    for (const qint32 number : facts.failures)
        failures.append(number);
    if (!failures.isEmpty())
        entry.insert(u"failures"_s, failures);
}
