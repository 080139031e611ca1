#pragma once

#include <QtCore/QList>
#include <QtCore/QMetaMethod>
#include <QtCore/QObject>

#include <functional>
#include <utility>

// Receives a signal of any kind.
class AnyReceiver : public QObject
{
public:
    AnyReceiver(QObject &raiser, const QMetaMethod &signal, std::function<void()> act)
        : m_act(std::move(act))
    {
        QMetaObject::connect(&raiser, signal.methodIndex(), this,
                             QObject::staticMetaObject.methodCount(), Qt::DirectConnection);
    }

    int qt_metacall(QMetaObject::Call call, int id, void **values) override
    {
        id = QObject::qt_metacall(call, id, values);
        if (id != 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        m_act();
        return -1;
    }

private:
    std::function<void()> m_act;
};

// All that a class declares and inherits up to the one given, which is left out.
inline QList<QMetaMethod> signalsOf(const QObject &raiser, const QMetaObject &base)
{
    const QMetaObject &meta = *raiser.metaObject();
    QList<QMetaMethod> found;
    for (int i = base.methodCount(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            found.append(meta.method(i));
    }
    return found;
}
