#include <ORVTListview/DataObject.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/LateCall.h>
#include <ORVTListview/PointCollection.h>

#include <QtCore/QMimeData>
#include <QtTest/QTest>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

// Errors cross the edges of the libraries as what they are.
class HostErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void thoseOfTheCoreReachTheHost()
    {
        PointList points;
        points.Add(u"Fan1"_s);
        QVERIFY_THROWS_EXCEPTION(Error, points.Add(u"FAN1"_s));
        try {
            points.Remove(u"Fan2"_s);
            QFAIL("Nothing was raised");
        } catch (const std::exception &error) {
            QCOMPARE(QByteArray(error.what()).first(17), QByteArray("PointList.Remove:"));
        }
    }

    static void thoseOfTheComponentsReachTheHost()
    {
        QMimeData data;
        const DataObject object(&data, DataObject::Side::Target);
        try {
            object.GetData(DataObject::Text);
            QFAIL("Nothing was raised");
        } catch (const Error &error) {
            QCOMPARE(error.Number(), qint32{InvalidCall});
            QCOMPARE(error.Source(), u"DataObject.GetData"_s);
        }
    }

    static void thoseOfTheComponentsReachTheCore()
    {
        QMimeData data;
        DataObject object(&data, DataObject::Side::Target);
        QVariant variant = QVariant::fromValue(&object);
        QVariantList arguments{int{DataObject::Text}};
        QVariant result;
        const std::optional<Error> raised = callLate(variant, u"GetData"_s, arguments, result);
        QVERIFY(raised.has_value());
        QCOMPARE(raised->Number(), qint32{InvalidCall});
    }

    static void thoseOfTheHostReachTheHostAgain()
    {
        struct Failing final : PointCollection
        {
            qint32 Count() const override { throw Error(77, u"Host"_s, u"No points"_s); }
            std::optional<Point> Item(qint32) const override { return {}; }
            std::optional<Point> Find(const QString &) const override { return {}; }
        };
        Failing points;
        QVariant variant = QVariant::fromValue<PointCollection *>(&points);
        QVariantList arguments;
        QVariant result;
        const std::optional<Error> raised = callLate(variant, u"Count"_s, arguments, result);
        QVERIFY(raised.has_value());
        QCOMPARE(raised->Number(), 77);
    }
};

QTEST_GUILESS_MAIN(HostErrorsTest)
#include "HostErrorsTest.moc"
