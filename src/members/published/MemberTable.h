#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace ORVTListview {

enum class MemberKind { Property, Method, Event };

// Which way an argument goes: to the member, back from it, or both.
enum class ArgumentDirection { In, Out, InOut };

struct MemberArgument
{
    QString name;
    QMetaType type;
    ArgumentDirection direction = ArgumentDirection::In;
    bool isOptional = false; // only arguments at the end are
    QVariant defaultValue;   // what an optional argument is when left out
};

// One property, method or event of a component.
struct Member
{
    // values[0] is where the result goes, the arguments follow; each points to a
    // variable of exactly the type that the table names.
    using Call = void (*)(QObject &component, void **values);

    MemberKind kind = MemberKind::Method;
    QString name;
    qint32 number = 0; // of an event; from 1
    QList<MemberArgument> arguments;
    QMetaType type;       // of a property's value or a method's result; none: invalid
    Call call = nullptr;  // of a method, or reads a property; null when it cannot be read
    Call put = nullptr;   // sets a property; null when it cannot be set
    int signalIndex = -1; // of an event in the component's meta-object
};

// Every property, method and event of one component, in the published order. The
// one source of the delivery by number and of the late-bound calls.
class ORVT_CORE_EXPORT MemberTable
{
public:
    MemberTable(const QString &component, const QList<Member> &members);

    // The component's class name.
    QString component() const;

    const QList<Member> &members() const;

    // The property or method of that name, without regard to letter case; null for
    // an unknown name and for an event.
    const Member *find(const QString &name) const;

private:
    struct Private;
    std::shared_ptr<const Private> d; // never changes: copies share it
};

} // namespace ORVTListview
