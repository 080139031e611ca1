#include <ORVTListview/LateCall.h>

#include "members/ArgumentValue.h"
#include "members/HandedClass.h"

#include <QtCore/QObject>

#include <exception>
#include <utility>
#include <vector>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// What is called: a method, or one of the two ways of a property.
struct Target
{
    Member::Call call = nullptr;
    QList<MemberArgument> arguments;
    QMetaType resultType;
};

Error failure(qint32 status, const QString &place, const QString &description)
{
    return Error(status, place, description);
}

Target propertyTarget(const Member &member, const QString &place, qsizetype count)
{
    if (count > 1)
        throw failure(WrongArgumentCount, place, u"A property takes one value at most"_s);
    const bool isPut = count == 1;
    if (isPut && !member.put)
        throw failure(WrongArgumentCount, place, u"This property cannot be set"_s);
    if (!isPut && !member.call)
        throw failure(WrongArgumentCount, place, u"This property can only be set"_s);
    if (!isPut)
        return {member.call, {}, member.type};
    return {member.put, {MemberArgument{u"Value"_s, member.type, {}, false, {}}}, QMetaType()};
}

Target methodTarget(const Member &member, const QString &place, qsizetype count)
{
    const qsizetype most = member.arguments.size();
    qsizetype least = most;
    while (least > 0 && member.arguments.at(least - 1).isOptional)
        --least;
    if (count < least || count > most) {
        const QString text = u"%1 arguments are given, %2 to %3 are needed"_s;
        throw failure(
            WrongArgumentCount, place,
            text.arg(QString::number(count), QString::number(least), QString::number(most)));
    }
    return {member.call, member.arguments, member.type};
}

// The variable that the member gets for an argument.
QVariant variableFor(const MemberArgument &argument, const QVariant *given, const QString &place)
{
    const bool isLeftOut = !given || (argument.isOptional && !given->isValid());
    if (argument.direction == ArgumentDirection::Out ||
        (isLeftOut && !argument.defaultValue.isValid()))
        return QVariant(argument.type);
    const QVariant &value = isLeftOut ? argument.defaultValue : *given;
    if (const std::optional<QVariant> variable = ArgumentValue::converted(value, argument.type))
        return *variable;
    const QString text = u"The argument \"%1\" cannot be made a %2"_s;
    throw failure(WrongArgumentType, place,
                  text.arg(argument.name, QString::fromLatin1(argument.type.name())));
}

QVariantList variablesFor(const Target &target, const QVariantList &given, const QString &place)
{
    QVariantList variables;
    for (qsizetype i = 0; i < target.arguments.size(); ++i) {
        const QVariant *value = i < given.size() ? &given.at(i) : nullptr;
        variables.append(variableFor(target.arguments.at(i), value, place));
    }
    return variables;
}

QVariant carryOut(void *object, const Target &target, QVariantList &variables)
{
    QVariant resultVariable;
    std::vector<void *> values{nullptr};
    if (target.resultType.isValid()) {
        resultVariable = QVariant(target.resultType);
        values.front() = resultVariable.data();
    }
    for (QVariant &variable : variables)
        values.push_back(variable.data());
    target.call(object, values.data());
    return target.resultType.isValid()
               ? ArgumentValue::fromVariable(target.resultType, resultVariable.constData())
               : QVariant();
}

QVariantList broughtBack(const Target &target, const QVariantList &variables,
                         const QVariantList &arguments)
{
    QVariantList changed = arguments;
    for (qsizetype i = 0; i < changed.size(); ++i) {
        const MemberArgument &argument = target.arguments.at(i);
        if (argument.direction != ArgumentDirection::In)
            changed[i] = ArgumentValue::fromVariable(argument.type, variables.at(i).constData());
    }
    return changed;
}

void call(void *object, const MemberTable &members, const QString &name, QVariantList &arguments,
          QVariant &result)
{
    const QString place = members.component() + u'.' + name;
    const Member *member = members.find(name);
    if (!member)
        throw failure(UnknownMember, place, u"There is no such member"_s);
    const bool isProperty = member->kind == MemberKind::Property;
    const Target target = isProperty ? propertyTarget(*member, place, arguments.size())
                                     : methodTarget(*member, place, arguments.size());
    QVariantList variables = variablesFor(target, arguments, place);
    QVariant returned = carryOut(object, target, variables);
    arguments = broughtBack(target, variables, arguments);
    result = std::move(returned); // neither changes when anything above fails
}

std::optional<Error> callAt(void *object, const MemberTable &members, const QString &name,
                            QVariantList &arguments, QVariant &result)
{
    const QString place = members.component() + u'.' + name;
    try {
        call(object, members, name, arguments, result);
    } catch (const Error &error) {
        return error;
    } catch (const std::exception &error) {
        return failure(UnexpectedFailure, place, QString::fromUtf8(error.what()));
    } catch (...) {
        return failure(UnexpectedFailure, place, u"Unknown failure"_s);
    }
    return std::nullopt;
}

} // namespace

std::optional<Error> callLate(QObject &component, const MemberTable &members, const QString &name,
                              QVariantList &arguments, QVariant &result)
{
    return callAt(&component, members, name, arguments, result);
}

std::optional<Error> callLate(QVariant &object, const QString &name, QVariantList &arguments,
                              QVariant &result)
{
    const MemberTable *members = membersOf(object);
    if (!members)
        return failure(UnknownMember, name, u"There are no members in this"_s);
    void *const address = HandedClass::addressIn(object);
    if (!address)
        return failure(ObjectNotSet, members->component() + u'.' + name, u"There is no object"_s);
    return callAt(address, *members, name, arguments, result);
}

const MemberTable *membersOf(const QVariant &object)
{
    if (!object.metaType().flags().testFlag(QMetaType::PointerToQObject))
        return membersOf(object.metaType());
    const auto *const instance = object.value<QObject *>();
    return instance ? HandedClass::members(*instance->metaObject()) : membersOf(object.metaType());
}

const MemberTable *membersOf(QMetaType type)
{
    if (type.flags().testFlag(QMetaType::PointerToQObject) && type.metaObject())
        return HandedClass::members(*type.metaObject());
    return HandedClass::members(type);
}

QList<QMetaType> typesWithMembers()
{
    return HandedClass::types();
}

} // namespace ORVTListview
