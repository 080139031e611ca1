#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

namespace ORVTListview {

// What a member is to a late-bound call; events are heard of, not called.
enum class MemberKind { Property, Method, Event };

// Which way an argument goes: to the member, back from it, or both.
enum class ArgumentDirection { In, Out, InOut };

// One argument of a method or an event.
struct MemberArgument
{
    QString name;                                        // as it is published
    QMetaType type;                                      // without a reference
    ArgumentDirection direction = ArgumentDirection::In; // by reference, or not
    bool isOptional = false;                             // only arguments at the end are
    QVariant defaultValue; // what an optional argument is when left out
};

// One property, method or event of a class.
struct Member
{
    // `object` is the address of the object, of a QObject that of the QObject. values[0]
    // is where the result goes, the arguments follow; each points to a variable of exactly
    // the type that the table names.
    using Call = void (*)(void *object, void **values);

    MemberKind kind = MemberKind::Method; // which of the fields below count
    QString name;                         // as it is published
    qint32 number = 0;                    // of an event; from 1 in its class
    QList<MemberArgument> arguments;      // of a method or an event, in order
    QMetaType type;       // of a property's value or a method's result; none: invalid
    Call call = nullptr;  // of a method, or reads a property; null when it cannot be read
    Call put = nullptr;   // sets a property; null when it cannot be set
    int signalIndex = -1; // of an event in the class's meta-object
};

// What the types of a member do not tell. Fields that are empty have nothing to tell.
struct MemberFacts
{
    QString name = {};           // the member's
    QString unit = {};           // of the value or result: "twip", "point", "percent", "colour"
    QString range = {};          // of the value or the arguments: "1 to Count()"
    QList<qint32> failures = {}; // the numbers of the errors that it raises itself
};

// Every property, method and event of one class, in the published order. The one source
// of the delivery by number, of the late-bound calls and of members.json.
class ORVT_CORE_EXPORT MemberTable
{
public:
    MemberTable(const QString &component, const QList<Member> &members);
    MemberTable(const QString &component, const QList<Member> &members,
                const QList<MemberFacts> &facts);

    // The class's name.
    QString component() const;

    // In the published order.
    const QList<Member> &members() const;

    // By name as it is written; empty facts for a member that has none.
    MemberFacts facts(const QString &name) const;

    // Every one that the table has, to be compared with its members.
    const QList<MemberFacts> &allFacts() const;

    // The property or method of that name, without regard to letter case; null for
    // an unknown name and for an event.
    const Member *find(const QString &name) const;

private:
    struct Private;
    std::shared_ptr<const Private> d; // never changes: copies share it
};

} // namespace ORVTListview
