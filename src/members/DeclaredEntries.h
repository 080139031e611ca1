#pragma once

#include <ORVTListview/MemberTable.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QObject>

#include <algorithm>

// Makes the entries of a MemberTable from what a QObject declares with Q_PROPERTY and
// Q_INVOKABLE, so that names, types and functions stand in the declaration alone:
//
//     properties<Gauge, "Caption", "Enabled">() + invokables<Gauge, "Find", "Clear">()
//
// An invokable with arguments by reference, with defaults or with overloads needs an entry
// of MemberEntries.h, as its declaration does not tell all that the entry says; so does one
// with a pointer to a class that its header only names, as moc does not know that type.

namespace ORVTListview::MemberEntries {

// A text as a template takes it.
template <std::size_t size>
struct DeclaredName
{
    consteval DeclaredName(const char (&name)[size]) // implicit: it is the text
    {
        std::copy_n(name, size, text);
    }

    char text[size] = {};
};

template <typename Class, DeclaredName name>
const QMetaProperty &declaredProperty()
{
    static const QMetaProperty property =
        Class::staticMetaObject.property(Class::staticMetaObject.indexOfProperty(name.text));
    return property;
}

// Not found if there are several: which one is meant is not to be guessed.
inline QMetaMethod onlyMethod(const QMetaObject &meta, const char *name)
{
    QMetaMethod found;
    for (int index = 0; index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        if (method.name() != name)
            continue;
        if (found.isValid())
            return {};
        found = method;
    }
    return found;
}

template <typename Class, DeclaredName name>
const QMetaMethod &declaredMethod()
{
    static const QMetaMethod method = onlyMethod(Class::staticMetaObject, name.text);
    return method;
}

// The object is asked itself: what a member throws must not pass through the toolkit.
template <typename Class, DeclaredName name>
void readDeclared(void *object, void **values)
{
    static_cast<QObject *>(object)->qt_metacall(
        QMetaObject::ReadProperty, declaredProperty<Class, name>().propertyIndex(), values);
}

template <typename Class, DeclaredName name>
void writeDeclared(void *object, void **values)
{
    static_cast<QObject *>(object)->qt_metacall(
        QMetaObject::WriteProperty, declaredProperty<Class, name>().propertyIndex(), values + 1);
}

template <typename Class, DeclaredName name>
void callDeclared(void *object, void **values)
{
    static_cast<QObject *>(object)->qt_metacall(
        QMetaObject::InvokeMetaMethod, declaredMethod<Class, name>().methodIndex(), values);
}

template <typename Class, DeclaredName name>
Member property()
{
    const QMetaProperty &declared = declaredProperty<Class, name>();
    Q_ASSERT(declared.isReadable());
    Member member;
    member.kind = MemberKind::Property;
    member.name = QString::fromLatin1(declared.name());
    member.type = declared.metaType();
    member.call = &readDeclared<Class, name>;
    if (declared.isWritable())
        member.put = &writeDeclared<Class, name>;
    return member;
}

inline QList<MemberArgument> declaredArguments(const QMetaMethod &method)
{
    QList<MemberArgument> arguments;
    const QList<QByteArray> names = method.parameterNames();
    for (int index = 0; index < method.parameterCount(); ++index) {
        MemberArgument argument;
        argument.name = QString::fromLatin1(names.at(index));
        argument.type = method.parameterMetaType(index);
        Q_ASSERT(argument.type.isValid());
        arguments.append(argument);
    }
    return arguments;
}

template <typename Class, DeclaredName name>
Member invokable()
{
    const QMetaMethod &declared = declaredMethod<Class, name>();
    Q_ASSERT(declared.isValid());
    const QMetaType result = declared.returnMetaType();
    Q_ASSERT(result.isValid());
    Member member;
    member.kind = MemberKind::Method;
    member.name = QString::fromLatin1(declared.name());
    member.arguments = declaredArguments(declared);
    member.type = result == QMetaType::fromType<void>() ? QMetaType() : result;
    member.call = &callDeclared<Class, name>;
    return member;
}

template <typename Class, DeclaredName... names>
QList<Member> properties()
{
    return {property<Class, names>()...};
}

template <typename Class, DeclaredName... names>
QList<Member> invokables()
{
    return {invokable<Class, names>()...};
}

} // namespace ORVTListview::MemberEntries
