#include "AllComponents.h"
#include "MemberText.h"

#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/Component.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QSet>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A type as moc writes it, a reference included.
QString plainName(const QByteArray &type)
{
    QString name = QString::fromLatin1(type);
    name.remove(u'&').remove(u"ORVTListview::"_s);
    return name == u"short"_s ? u"qint16"_s : name == u"int"_s ? u"qint32"_s : name;
}

QString argumentList(const QMetaMethod &method)
{
    QStringList texts;
    const QList<QByteArray> types = method.parameterTypes();
    const QList<QByteArray> names = method.parameterNames();
    for (qsizetype i = 0; i < types.size(); ++i) {
        const bool isReference = types.at(i).endsWith('&');
        texts.append(QString::fromLatin1(names.at(i)) + u": "_s + plainName(types.at(i)) +
                     (isReference ? u" in/out"_s : QString()));
    }
    return u'(' + texts.join(u", "_s) + u')';
}

QString argumentList(const Member &member)
{
    Member plain = member;
    for (MemberArgument &argument : plain.arguments)
        argument.isOptional = false;
    plain.type = QMetaType();
    return MemberText::line(plain).section(member.name, 1);
}

QList<QMetaMethod> methodsNamed(const QMetaObject &meta, const QString &name)
{
    QList<QMetaMethod> methods;
    for (int i = 0; i < meta.methodCount(); ++i) {
        if (QString::fromLatin1(meta.method(i).name()) == name)
            methods.append(meta.method(i));
    }
    return methods;
}

bool hasMethod(const QMetaObject &meta, const Member &member, QMetaMethod::MethodType type)
{
    for (const QMetaMethod &method : methodsNamed(meta, member.name)) {
        const QString result =
            method.returnType() == QMetaType::Void ? QString() : plainName(method.typeName());
        const QString wanted =
            member.type.isValid() ? MemberText::typeName(member.type) : QString();
        if (method.methodType() == type && argumentList(method) == argumentList(member) &&
            result == wanted)
            return true;
    }
    return false;
}

// A property may be one of the meta-object or a pair of invokable functions.
bool hasProperty(const QMetaObject &meta, const Member &member)
{
    const QMetaProperty property =
        meta.property(meta.indexOfProperty(member.name.toLatin1().constData()));
    const bool canRead = property.isReadable() || !methodsNamed(meta, member.name).isEmpty();
    const bool canWrite =
        property.isWritable() || !methodsNamed(meta, u"set"_s + member.name).isEmpty();
    return (!member.call || canRead) && (!member.put || canWrite);
}

bool isInMetaObject(const QMetaObject &meta, const Member &member)
{
    switch (member.kind) {
    case MemberKind::Property:
        return hasProperty(meta, member);
    case MemberKind::Event:
        return meta.method(member.signalIndex).name() == member.name.toLatin1() &&
               hasMethod(meta, member, QMetaMethod::Signal);
    case MemberKind::Method:
        break;
    }
    return hasMethod(meta, member, QMetaMethod::Method);
}

// What the class adds to every component, spelled as published.
QSet<QString> publishedNames(const QMetaObject &meta)
{
    QSet<QString> names;
    const QMetaObject &base = Component::staticMetaObject;
    for (int i = base.methodCount(); i < meta.methodCount(); ++i) {
        const QString name = QString::fromLatin1(meta.method(i).name());
        names.insert(name.startsWith(u"set"_s) ? name.mid(3) : name);
    }
    for (int i = base.propertyCount(); i < meta.propertyCount(); ++i)
        names.insert(QString::fromLatin1(meta.property(i).name()));
    names.removeIf([](const QString &name) { return name.isEmpty() || name.at(0).isLower(); });
    return names;
}

} // namespace

class MembersTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void agreeWithTheList_data() { AllComponents::addRows(); }
    void agreeWithTheList();
    void areInTheMetaObject_data() { AllComponents::addRows(); }
    void areInTheMetaObject();
    void areAllThatTheClassPublishes_data() { AllComponents::addRows(); }
    void areAllThatTheClassPublishes();
    void differNotInLetterCaseOnly_data() { AllComponents::addRows(); }
    void differNotInLetterCaseOnly();
    void haveEventNumbersInOrder_data() { AllComponents::addRows(); }
    void haveEventNumbersInOrder();

private:
    TestFolder m_settings; // the tree saves its pages
};

void MembersTest::init()
{
    WidgetTest::init();
    setSettingsFile(m_settings.path(u"settings"_s));
}

void MembersTest::agreeWithTheList()
{
    const auto control = AllComponents::component();
    const QString path = QStringLiteral(ORVT_MEMBER_LISTS "/%1.members")
                             .arg(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(control->Members().component(), QString::fromLatin1(QTest::currentDataTag()));
    const QStringList listed = MemberText::ofFile(path);
    const QStringList table = MemberText::ofTable(control->Members());
    const auto missing = [](const QStringList &all, const QStringList &some) {
        QStringList rest = all;
        rest.removeIf([&](const QString &line) { return some.contains(line); });
        return rest.join(u'\n');
    };
    QCOMPARE(missing(listed, table), QString()); // not in the table
    QCOMPARE(missing(table, listed), QString()); // not in the list
    QCOMPARE(table.size(), listed.size());
}

void MembersTest::areInTheMetaObject()
{
    const auto control = AllComponents::component();
    QStringList missing;
    for (const Member &member : control->Members().members()) {
        if (!isInMetaObject(*control->metaObject(), member))
            missing.append(MemberText::line(member));
    }
    QCOMPARE(missing.join(u'\n'), QString());
}

void MembersTest::areAllThatTheClassPublishes()
{
    const auto control = AllComponents::component();
    QSet<QString> rest = publishedNames(*control->metaObject());
    rest.remove(u"DesignMode"_s); // as a pair of methods
    for (const Member &member : control->Members().members())
        rest.remove(member.name);
    QCOMPARE(QStringList(rest.cbegin(), rest.cend()).join(u'\n'), QString());
}

void MembersTest::differNotInLetterCaseOnly()
{
    const auto control = AllComponents::component();
    QSet<QString> events;
    QSet<QString> others;
    for (const Member &member : control->Members().members()) {
        QSet<QString> &names = member.kind == MemberKind::Event ? events : others;
        QVERIFY2(!names.contains(member.name.toLower()), qPrintable(member.name));
        names.insert(member.name.toLower());
    }
}

void MembersTest::haveEventNumbersInOrder()
{
    const auto control = AllComponents::component();
    qint32 last = 0;
    for (const Member &member : control->Members().members()) {
        if (member.kind == MemberKind::Event)
            QCOMPARE(member.number, ++last);
    }
    QVERIFY(last > 0);
}

ORVT_TEST(MembersTest)
#include "MembersTest.moc"
