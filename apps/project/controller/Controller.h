#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QHashFunctions>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

// A point as a controller knows it: by its name, or where the points of a type have none
// by its number.
struct AskedPoint
{
    LwType type = dsCode;
    QString name;
    qint32 number = 0; // from 1; 0 for a point with a name

    friend bool operator==(const AskedPoint &, const AskedPoint &) = default;
    friend size_t qHash(const AskedPoint &point, size_t seed = 0)
    {
        return qHashMulti(seed, static_cast<int>(point.type), point.name, point.number);
    }
};

struct PointAnswer
{
    AskedPoint point;
    QVariant value; // a double or a text
};

// What a programming tool asks for the values of points. The answers come later, from the
// event loop, in as many parts as the controller likes.
class Controller : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // One question at a time; the number is the asker's, and stands in all that is told of
    // it. It ends with one of ended and failed, unless it is cancelled.
    virtual void ask(quint64 question, const QList<AskedPoint> &points) = 0;

    // The asker takes no answers any more.
    virtual void cancel(quint64 question) = 0;

Q_SIGNALS:
    void answered(quint64 question, const QList<ORVTListview::PointAnswer> &answers);
    void ended(quint64 question);

    // With the reason, as a sentence without its point.
    void failed(quint64 question, const QString &reason);
};

} // namespace ORVTListview
