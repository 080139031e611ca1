#pragma once

#include <ORVTListview/MemberTable.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QObject>

#include <functional>
#include <type_traits>
#include <utility>

// Makes the entries of a MemberTable from a component's functions: types and
// directions are taken from the function, so that they cannot disagree with it.
//
//     readWrite<&Gauge::Caption, &Gauge::setCaption>(u"Caption"),
//     method<&Gauge::Find>(u"Find", u"Text", optional(u"Start", 1), out(u"Where")),
//     raises<&Gauge::KeyDown>(8, u"KeyDown", u"KeyCode", u"Shift"),
//
// An argument by non-const reference goes both ways, or back only when the entry
// says so with out(). What has no function of its own, such as one of two overloads, is
// a free function that takes the object first. Members that a class which is no QObject
// has from its base name the class: method<&Row::Key, Row>(u"Key").

namespace ORVTListview::MemberEntries {

using namespace Qt::StringLiterals;

struct ArgumentName
{
    ArgumentName(const char16_t *text) // implicit: most arguments are just a name
        : name(QStringView(text).toString())
    {
    }

    QString name;
    bool isOut = false;
    bool isOptional = false;
    QVariant defaultValue;
};

inline ArgumentName out(const char16_t *name)
{
    ArgumentName argument(name);
    argument.isOut = true;
    return argument;
}

// Without a value of its own, an argument left out is zero or empty.
inline ArgumentName optional(ArgumentName argument, const QVariant &defaultValue = QVariant())
{
    argument.isOptional = true;
    argument.defaultValue = defaultValue;
    return argument;
}

template <typename Argument>
MemberArgument describedArgument(const ArgumentName &name)
{
    using Value = std::remove_cvref_t<Argument>;
    constexpr bool goesBack =
        std::is_lvalue_reference_v<Argument> && !std::is_const_v<std::remove_reference_t<Argument>>;
    Q_ASSERT(goesBack || !name.isOut);
    MemberArgument argument;
    argument.name = name.name;
    argument.type = QMetaType::fromType<Value>();
    if (goesBack)
        argument.direction = name.isOut ? ArgumentDirection::Out : ArgumentDirection::InOut;
    argument.isOptional = name.isOptional;
    argument.defaultValue = name.defaultValue;
    return argument;
}

template <typename Function>
struct Signature;

// Every table's calls come with the address of what it was made for.
template <typename Object>
Object &objectAt(void *object)
{
    if constexpr (std::is_base_of_v<QObject, Object>)
        return static_cast<Object &>(*static_cast<QObject *>(object));
    else
        return *static_cast<Object *>(object);
}

template <typename R, typename C, typename... A>
struct Signature<R (C::*)(A...)>
{
    using Object = C;
    using Result = std::remove_cvref_t<R>;
    static constexpr std::size_t count = sizeof...(A);

    static QMetaType resultType()
    {
        return std::is_void_v<R> ? QMetaType() : QMetaType::fromType<Result>();
    }

    template <typename... Names>
    static QList<MemberArgument> described(const Names &...names)
    {
        static_assert(sizeof...(Names) == count, "one name for each argument");
        return {describedArgument<A>(names)...};
    }

    template <auto function, typename Of>
    static void call(void *object, void **values)
    {
        callWith<function>(objectAt<Of>(object), values, std::index_sequence_for<A...>());
    }

private:
    template <auto function, typename Of, std::size_t... i>
    static void callWith(Of &object, [[maybe_unused]] void **values, std::index_sequence<i...>)
    {
        if constexpr (std::is_void_v<R>)
            std::invoke(function, object, *static_cast<std::remove_cvref_t<A> *>(values[i + 1])...);
        else
            *static_cast<Result *>(values[0]) = std::invoke(
                function, object, *static_cast<std::remove_cvref_t<A> *>(values[i + 1])...);
    }
};

template <typename R, typename C, typename... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)>
{
};

template <typename R, typename C, typename... A>
struct Signature<R (*)(C &, A...)> : Signature<R (std::remove_const_t<C>::*)(A...)>
{
};

template <auto function>
using SignatureOf = Signature<decltype(function)>;

template <auto function>
using ObjectOf = typename SignatureOf<function>::Object;

template <auto function, typename Object = ObjectOf<function>, typename... Names>
Member method(const char16_t *name, const Names &...names)
{
    using Function = SignatureOf<function>;
    Member member;
    member.kind = MemberKind::Method;
    member.name = QStringView(name).toString();
    member.arguments = Function::described(ArgumentName(names)...);
    member.type = Function::resultType();
    member.call = &Function::template call<function, Object>;
    return member;
}

template <auto getter, typename Object = ObjectOf<getter>>
Member readOnly(const char16_t *name)
{
    Member member = method<getter, Object>(name);
    member.kind = MemberKind::Property;
    return member;
}

template <auto setter, typename Object = ObjectOf<setter>>
Member writeOnly(const char16_t *name)
{
    using Function = SignatureOf<setter>;
    static_assert(std::is_void_v<typename Function::Result>, "a property's setter returns nothing");
    Member member;
    member.kind = MemberKind::Property;
    member.name = QStringView(name).toString();
    member.type = Function::described(ArgumentName(u"Value")).constFirst().type;
    member.put = &Function::template call<setter, Object>;
    return member;
}

template <auto getter, auto setter, typename Object = ObjectOf<getter>>
Member readWrite(const char16_t *name)
{
    Member member = readOnly<getter, Object>(name);
    const Member writing = writeOnly<setter, Object>(name);
    Q_ASSERT(member.type == writing.type);
    member.put = writing.put;
    return member;
}

template <auto signal, typename... Names>
Member raises(qint32 number, const char16_t *name, const Names &...names)
{
    Member member;
    member.kind = MemberKind::Event;
    member.name = QStringView(name).toString();
    member.number = number;
    member.arguments = SignatureOf<signal>::described(ArgumentName(names)...);
    member.signalIndex = QMetaMethod::fromSignal(signal).methodIndex();
    return member;
}

// All that several functions list, in their order: for a HandedClass whose table is written
// in parts.
template <auto... lists>
auto together()
{
    return (lists() + ...);
}

} // namespace ORVTListview::MemberEntries
