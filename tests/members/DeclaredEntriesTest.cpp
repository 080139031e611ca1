#include "members/DeclaredEntries.h"

#include "support/QtPrinters.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/LateCall.h>
#include <ORVTListview/Types.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

// What its table is to know stands in its declaration alone.
class Dial : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(ORVTListview::LwType kind READ kind WRITE setKind)
    Q_PROPERTY(QVariant last READ last)

public:
    QString unit() const { return m_unit; }
    void setUnit(const QString &unit)
    {
        if (unit.isEmpty())
            throw Error(InvalidCall, u"Dial.unit"_s, u"A unit is needed"_s);
        m_unit = unit;
    }
    LwType kind() const { return m_kind; }
    void setKind(LwType kind) { m_kind = kind; }
    QVariant last() const { return m_last; }

    Q_INVOKABLE QString turned(const QString &by, qint16 times)
    {
        m_last = times;
        return by.repeated(times);
    }
    Q_INVOKABLE void reset() { m_last.clear(); }
    Q_INVOKABLE void fail() { throw Error(Overflow, u"Dial.fail"_s, u"Failed"_s); }
    Q_INVOKABLE void either(qint16) {}
    Q_INVOKABLE void either(const QString &) {}

private:
    QString m_unit = u"bar"_s;
    LwType m_kind = dsTimer;
    QVariant m_last;
};

// Its meta-object counts on from that of its base.
class FineDial : public Dial
{
    Q_OBJECT
    Q_PROPERTY(qint16 steps MEMBER m_steps)

public:
    qint16 m_steps = 3;
};

namespace {

const MemberTable &dialTable()
{
    using namespace MemberEntries;
    static const MemberTable table(u"Dial"_s, properties<Dial, "unit", "kind", "last">() +
                                                  invokables<Dial, "turned", "reset", "fail">());
    return table;
}

const MemberTable &fineTable()
{
    using namespace MemberEntries;
    static const MemberTable table(u"FineDial"_s, properties<FineDial, "steps", "unit">() +
                                                      invokables<FineDial, "turned">());
    return table;
}

class DeclaredEntries : public ::testing::Test
{
protected:
    qint32 call(QObject &dial, const MemberTable &table, const QString &name,
                const QVariantList &given = {})
    {
        QVariantList arguments = given;
        const std::optional<Error> error = callLate(dial, table, name, arguments, result);
        return error ? error->Number() : CallSucceeded;
    }

    QVariant result;
};

TEST_F(DeclaredEntries, TellWhatTheDeclarationsTell)
{
    const QList<Member> &members = dialTable().members();
    ASSERT_EQ(members.size(), 6);
    EXPECT_EQ(members[0].name, u"unit"_s);
    EXPECT_EQ(members[1].type, QMetaType::fromType<LwType>());
    EXPECT_TRUE(members[0].put && !members[2].put);
    EXPECT_EQ(members[3].kind, MemberKind::Method);
    EXPECT_EQ(members[3].type, QMetaType::fromType<QString>());
    ASSERT_EQ(members[3].arguments.size(), 2);
    EXPECT_EQ(members[3].arguments[1].name, u"times"_s);
    EXPECT_EQ(members[3].arguments[1].type, QMetaType::fromType<qint16>());
    EXPECT_FALSE(members[4].type.isValid());
}

TEST_F(DeclaredEntries, ReadAndSetWhatIsDeclared)
{
    Dial dial;
    EXPECT_EQ(call(dial, dialTable(), u"unit"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"bar"_s));
    EXPECT_EQ(call(dial, dialTable(), u"kind"_s, {4}), CallSucceeded);
    EXPECT_EQ(dial.kind(), dsOutput);
    EXPECT_EQ(call(dial, dialTable(), u"last"_s, {4}), WrongArgumentCount);
}

TEST_F(DeclaredEntries, CallWhatIsDeclared)
{
    Dial dial;
    EXPECT_EQ(call(dial, dialTable(), u"turned"_s, {u"ab"_s, 2}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"abab"_s));
    EXPECT_EQ(call(dial, dialTable(), u"last"_s), CallSucceeded);
    EXPECT_EQ(result.toInt(), 2);
    EXPECT_EQ(call(dial, dialTable(), u"reset"_s), CallSucceeded);
    EXPECT_FALSE(dial.last().isValid());
}

TEST_F(DeclaredEntries, FailAsTheMembersFail)
{
    Dial dial;
    EXPECT_EQ(call(dial, dialTable(), u"unit"_s, {QString()}), InvalidCall);
    EXPECT_EQ(call(dial, dialTable(), u"fail"_s), Overflow);
    EXPECT_EQ(dial.unit(), u"bar"_s);
}

TEST_F(DeclaredEntries, ReachTheMembersOfABaseToo)
{
    FineDial dial;
    EXPECT_EQ(call(dial, fineTable(), u"steps"_s, {7}), CallSucceeded);
    EXPECT_EQ(dial.m_steps, 7);
    EXPECT_EQ(call(dial, fineTable(), u"unit"_s, {u"K"_s}), CallSucceeded);
    EXPECT_EQ(call(dial, fineTable(), u"turned"_s, {u"x"_s, 3}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"xxx"_s));
    EXPECT_EQ(call(dial, dialTable(), u"unit"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"K"_s));
}

TEST_F(DeclaredEntries, DoNotChooseAmongOverloads)
{
    EXPECT_TRUE(MemberEntries::onlyMethod(Dial::staticMetaObject, "turned").isValid());
    EXPECT_FALSE(MemberEntries::onlyMethod(Dial::staticMetaObject, "either").isValid());
    EXPECT_FALSE(MemberEntries::onlyMethod(Dial::staticMetaObject, "turn").isValid());
}

} // namespace

#include "DeclaredEntriesTest.moc"
