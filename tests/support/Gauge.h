#pragma once

#include "members/MemberEntries.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/MemberTable.h>
#include <ORVTListview/Types.h>

#include <QtCore/QObject>

#include <stdexcept>

// A component small enough to see at a glance, with a member of each kind.
class Gauge : public QObject
{
    Q_OBJECT

public:
    QString Caption() const { return m_caption; }
    void setCaption(const QString &caption) { m_caption = caption; }
    qint16 Count() const { return m_count; }
    void setIsWait(bool wait) { m_isWait = wait; }
    bool isWait() const { return m_isWait; }
    ORVTListview::LwType Type() const { return m_type; }
    void setType(ORVTListview::LwType type) { m_type = type; }
    QVariant Anything() const { return m_anything; }
    void setAnything(const QVariant &value) { m_anything = value; }
    QObject *Owner() const { return m_owner; }
    void setOwner(Gauge *owner) { m_owner = owner; }

    void Clear() { m_caption.clear(); }
    QString Joined(const QString &a, qint32 count, const QString &b)
    {
        return a.repeated(count) + b;
    }
    void Doubled(qint16 &value, QString &log, qint32 &half)
    {
        half = value / 2;
        value = static_cast<qint16>(value * 2);
        log += QLatin1Char('d');
    }
    void Fail(qint32 number)
    {
        throw ORVTListview::Error(number, QStringLiteral("Gauge.Fail"), QStringLiteral("Failed"));
    }
    void Break() { throw std::runtime_error("broken"); }
    void BreakOddly() { throw 42; }
    qint16 Weight(double value) const { return static_cast<qint16>(value); }

Q_SIGNALS:
    void Click();
    void BeforeEdit(qint16 &Cancel, QString &Text);
    void KeyDown(qint16 &KeyCode, qint16 Shift);
    void Moved(float X, ORVTListview::LwType Type, Gauge *Where);

public:
    static const ORVTListview::MemberTable &members();

private:
    QString m_caption;
    qint16 m_count = 7;
    bool m_isWait = false;
    ORVTListview::LwType m_type = ORVTListview::dsInput;
    QVariant m_anything;
    Gauge *m_owner = nullptr;
};
