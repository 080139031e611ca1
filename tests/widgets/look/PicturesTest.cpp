#include "widgets/look/Pictures.h"
#include "support/Pixels.h"
#include "support/TestProgram.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ImageList.h>

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QStringList typeKeys{u"Code"_s,
                           u"Variables"_s,
                           u"Constants"_s,
                           u"Inputs"_s,
                           u"Outputs"_s,
                           u"Controllers"_s,
                           u"Logs"_s,
                           u"Timers"_s,
                           u"Optimum Starts"_s,
                           u"Network Var Inputs"_s,
                           u"Network Var Outputs"_s,
                           u"Input Parameters"_s,
                           u"Output Parameters"_s};
const QStringList otherKeys{u"BallGreen"_s, u"BallRed"_s, u"Device"_s, u"Page"_s};
constexpr qint32 firstWordIndex = 61;
constexpr qint32 lastWordIndex = 71;

const QColor light(0xff, 0xff, 0xff);
const QColor dark(0x1e, 0x1e, 0x1e);

const ImageList &pictures()
{
    static ImageList list;
    if (list.Count() == 0)
        Pictures::fillInto(list);
    return list;
}

QStringList plainKeys()
{
    QStringList keys = pictures().Keys();
    for (const QString &type : typeKeys)
        keys.removeAll(type + u"Down"_s);
    return keys;
}

void addKeys(const QStringList &keys)
{
    QTest::addColumn<QString>("key");
    for (const QString &key : keys)
        QTest::newRow(qPrintable(key)) << key;
}

// The colour of the pixels that are covered wholly.
QColor accent(const QIcon &picture)
{
    const QImage drawn = Pixels::of(picture, 64);
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            if (Pixels::isSolid(drawn.pixel(x, y)))
                return drawn.pixelColor(x, y);
    return {};
}

int distance(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
           std::abs(one.blue() - other.blue());
}

} // namespace

class PicturesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyPublishedKeyIsThere();
    void everyWordClassHasItsIndex();
    void keysAndIndexesAreOneToOne();
    void aTakenKeyIsRefused();
    void pictureIsDrawnAtEverySize_data();
    void pictureIsDrawnAtEverySize();
    void pictureKeepsItsMargin_data();
    void pictureKeepsItsMargin();
    void pictureIsSeenOnLightAndDark_data();
    void pictureIsSeenOnLightAndDark();
    void pictureHasOneColour_data();
    void pictureHasOneColour();
    void disabledPictureIsFainterButSeen_data();
    void disabledPictureIsFainterButSeen();
    void picturesDifferInShape();
    void typesDifferInColour();
    void pressedPictureIsHeavier_data();
    void pressedPictureIsHeavier();
    void statusPicturesDifferWithoutColour();
};

void PicturesTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void PicturesTest::everyPublishedKeyIsThere()
{
    for (const QString &key : typeKeys) {
        QVERIFY2(pictures().Contains(key), qPrintable(key));
        QVERIFY2(pictures().Contains(key + u"Down"_s), qPrintable(key));
        QCOMPARE(Pictures::pressedKey(key), key + u"Down"_s);
    }
    for (const QString &key : otherKeys)
        QVERIFY2(pictures().Contains(key), qPrintable(key));
    QVERIFY(pictures().Picture(u"inputs"_s).isNull());
    QVERIFY(pictures().Picture(u"BallGreenDown"_s).isNull());
}

void PicturesTest::everyWordClassHasItsIndex()
{
    const std::map<qint32, QString> expected{
        {61, u"Fan-In Words"_s},
        {62, u"Time Words"_s},
        {63, u"Functions"_s},
        {64, u"Keywords"_s},
        {65, u"Other Words"_s},
        {66, u"Constants"_s},
        {67, u"Variables"_s},
        {68, u"Inputs"_s},
        {69, u"Outputs"_s},
        {70, u"Network Var Outputs"_s},
        {71, u"Network Var Inputs"_s},
    };
    for (qint32 index = firstWordIndex; index <= lastWordIndex; ++index) {
        QCOMPARE(pictures().KeyOf(index), expected.at(index));
        QVERIFY(!pictures().Picture(index).isNull());
    }
}

void PicturesTest::keysAndIndexesAreOneToOne()
{
    const QStringList keys = pictures().Keys();
    QCOMPARE(pictures().Count(), keys.size());
    QCOMPARE(keys.size(), 2 * typeKeys.size() + otherKeys.size() + 5);
    for (const QString &key : keys)
        QCOMPARE(pictures().KeyOf(pictures().IndexOf(key)), key);
}

void PicturesTest::aTakenKeyIsRefused()
{
    ImageList list;
    Pictures::fillInto(list);
    QVERIFY_THROWS_EXCEPTION(Error, Pictures::fillInto(list));
}

void PicturesTest::pictureIsDrawnAtEverySize_data()
{
    addKeys(pictures().Keys());
}

void PicturesTest::pictureIsDrawnAtEverySize()
{
    QFETCH(QString, key);
    for (const int size : {16, 24, 32, 48})
        for (const int ratio : {1, 2, 3}) {
            const QImage drawn = Pixels::of(pictures().Picture(key), size, ratio);
            QCOMPARE(drawn.size(), QSize(size, size) * ratio);
            const int area = drawn.width() * drawn.height();
            QVERIFY(Pixels::count(drawn, Pixels::isPainted) > area / 5);
            QVERIFY(Pixels::count(drawn, Pixels::isSolid) < area * 9 / 10);
        }
}

void PicturesTest::pictureKeepsItsMargin_data()
{
    addKeys(plainKeys());
}

void PicturesTest::pictureKeepsItsMargin()
{
    QFETCH(QString, key);
    constexpr int unit = 10; // pixels of a sixteenth
    const QImage drawn = Pixels::of(pictures().Picture(key), 16 * unit);
    const QImage inner = drawn.copy(drawn.rect().adjusted(5, 5, -5, -5));
    QCOMPARE(Pixels::count(inner, Pixels::isPainted), Pixels::count(drawn, Pixels::isPainted));
}

void PicturesTest::pictureIsSeenOnLightAndDark_data()
{
    addKeys(pictures().Keys());
}

void PicturesTest::pictureIsSeenOnLightAndDark()
{
    QFETCH(QString, key);
    const QIcon picture = pictures().Picture(key);
    for (const QColor &ground : {light, dark}) {
        QVERIFY(Pixels::contrast(accent(picture).rgb(), ground.rgb()) >= 3.0);
        QVERIFY(Pixels::countStandingOut(Pixels::of(picture, 16), ground, 3.0) >= 20);
        QVERIFY(Pixels::countStandingOut(Pixels::of(picture, 32), ground, 3.0) >= 32 * 32 / 8);
    }
}

void PicturesTest::pictureHasOneColour_data()
{
    addKeys(pictures().Keys());
}

void PicturesTest::pictureHasOneColour()
{
    QFETCH(QString, key);
    const QColor colour = accent(pictures().Picture(key));
    const QImage drawn = Pixels::of(pictures().Picture(key), 64);
    QVERIFY(Pixels::all(drawn, [&](QRgb pixel) {
        return qAlpha(pixel) < 32 || distance(QColor(pixel), colour) < 24;
    }));
}

void PicturesTest::disabledPictureIsFainterButSeen_data()
{
    addKeys(pictures().Keys());
}

void PicturesTest::disabledPictureIsFainterButSeen()
{
    QFETCH(QString, key);
    const QIcon picture = pictures().Picture(key);
    const QImage disabled = Pixels::of(picture, 32, 1.0, QIcon::Disabled);
    for (const QColor &ground : {light, dark}) {
        QVERIFY(Pixels::countStandingOut(disabled, ground, 2.0) >= 32 * 32 / 8);
        QCOMPARE(Pixels::countStandingOut(disabled, ground, 3.0), 0);
    }
}

void PicturesTest::picturesDifferInShape()
{
    const QStringList keys = pictures().Keys();
    for (qsizetype i = 0; i < keys.size(); ++i)
        for (qsizetype j = 0; j < i; ++j) {
            const int different =
                Pixels::countShapeDifferences(Pixels::of(pictures().Picture(keys.at(i)), 16),
                                              Pixels::of(pictures().Picture(keys.at(j)), 16));
            QVERIFY2(different >= 20, qPrintable(keys.at(i) + u" and "_s + keys.at(j)));
        }
}

void PicturesTest::typesDifferInColour()
{
    for (const QString &one : typeKeys)
        for (const QString &other : typeKeys)
            QVERIFY2(one == other || distance(accent(pictures().Picture(one)),
                                              accent(pictures().Picture(other))) >= 40,
                     qPrintable(one + u" and "_s + other));
}

void PicturesTest::pressedPictureIsHeavier_data()
{
    addKeys(typeKeys);
}

void PicturesTest::pressedPictureIsHeavier()
{
    QFETCH(QString, key);
    const QIcon plain = pictures().Picture(key);
    const QIcon pressed = pictures().Picture(Pictures::pressedKey(key));
    for (const int size : {16, 32}) {
        QVERIFY(Pixels::count(Pixels::of(pressed, size), Pixels::isSolid) >
                Pixels::count(Pixels::of(plain, size), Pixels::isSolid) + size * size / 4);
    }
    QVERIFY(distance(accent(plain), accent(pressed)) < 8);
}

void PicturesTest::statusPicturesDifferWithoutColour()
{
    for (const int size : {16, 32}) {
        const int different =
            Pixels::countShapeDifferences(Pixels::of(pictures().Picture(u"BallGreen"_s), size),
                                          Pixels::of(pictures().Picture(u"BallRed"_s), size));
        QVERIFY(different >= size * size / 4);
    }
}

ORVT_TEST(PicturesTest)
#include "PicturesTest.moc"
