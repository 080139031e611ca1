#include "support/Pixels.h"
#include "support/TestProgram.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ImageList.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPixmapCache>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QColor red(0xd7, 0x33, 0x37);
constexpr auto inkedSvg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 4'>"
                          "<rect fill='INK' width='4' height='4'/></svg>";
constexpr std::array sizes{16, 24, 32, 48, 64};
constexpr std::array ratios{1.0, 1.25, 1.5, 2.0, 3.0};

// Shows a picture as a row's decoration is shown.
class Row final : public QWidget
{
public:
    Row(const QIcon &picture, QIcon::Mode mode)
        : m_picture(picture)
        , m_mode(mode)
    {
        resize(32, 32);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        m_picture.paint(&painter, rect(), Qt::AlignCenter, m_mode);
    }

private:
    QIcon m_picture;
    QIcon::Mode m_mode;
};

bool raises(ImageList &list, const QString &key, qint32 index, const QString &file)
{
    try {
        list.Add(key, index, file);
    } catch (const Error &error) {
        return error.Number() == InvalidCall && error.Source() == u"ImageList.Add"_s &&
               !error.Description().isEmpty();
    }
    return false;
}

} // namespace

class ImageListTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void emptyListHoldsNothing();
    void pictureIsFoundByKeyAndByIndex();
    void keysAreCaseSensitive();
    void keysComeInTheOrderOfTheIndexes();
    void refusals_data();
    void refusals();
    void brokenFileIsRefused();
    void iconOutlivesItsList();
    void sizeIsTheOneAskedFor_data();
    void sizeIsTheOneAskedFor();
    void edgesAreSharpAtEverySize_data();
    void edgesAreSharpAtEverySize();
    void edgesAreSharpInAZoomedView();
    void placeIsSquareAndCentred();
    void wideDrawingIsFittedAndCentred();
    void noSizeGivesNoPixmap();
    void enormousSizeIsBounded();
    void disabledIsGreyAndSeenOnAnyGround();
    void selectedTakesTheColourOfSelectedText();
    void selectedFollowsThePaletteOfTheView();
    void activeLooksLikeNormal();
    void pressedIsTheNegativeInATile();
    void pressedOfAnEmptyDrawingIsHarmless();
    void emptiedCacheIsRefilled();
    void equalPicturesOfTwoListsAreDrawnOnce();
    void aFileThatHasChangedIsAnotherPicture();
    void detachedCopyStillDraws();

private:
    QString write(const QString &name, const QByteArray &content);
    QIcon picture(const QString &file, ImageList::Look look = ImageList::Look::Plain);

    QTemporaryDir m_folder;
    QString m_half;  // its left half is red
    QString m_inner; // a red square of half its width in the middle
};

QString ImageListTest::write(const QString &name, const QByteArray &content)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test picture");
    return file.fileName();
}

QIcon ImageListTest::picture(const QString &file, ImageList::Look look)
{
    ImageList list;
    list.Add(u"Key"_s, 1, file, look);
    return list.Picture(1);
}

void ImageListTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    m_half = write(u"half.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 4 4">
        <rect fill="#d73337" width="2" height="4"/></svg>)");
    m_inner = write(u"inner.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 4 4">
        <rect fill="#d73337" x="1" y="1" width="2" height="2"/></svg>)");
}

void ImageListTest::emptyListHoldsNothing()
{
    const ImageList list;
    QCOMPARE(list.Count(), 0);
    QVERIFY(list.Keys().isEmpty());
    for (const QString &key : {QString(), u"Key"_s}) {
        QVERIFY(!list.Contains(key));
        QVERIFY(list.Picture(key).isNull());
        QCOMPARE(list.IndexOf(key), 0);
    }
    for (const qint32 index : {-1, 0, 1}) {
        QVERIFY(!list.Contains(index));
        QVERIFY(list.Picture(index).isNull());
        QCOMPARE(list.KeyOf(index), QString());
    }
}

void ImageListTest::pictureIsFoundByKeyAndByIndex()
{
    ImageList list;
    list.Add(u"Half"_s, 71, m_half);
    list.Add(u"Inner"_s, 3, m_inner);

    QCOMPARE(list.Count(), 2);
    QVERIFY(list.Contains(u"Half"_s));
    QVERIFY(list.Contains(71));
    QVERIFY(!list.Contains(70));
    QCOMPARE(list.KeyOf(71), u"Half"_s);
    QCOMPARE(list.KeyOf(70), QString());
    QCOMPARE(list.IndexOf(u"Inner"_s), 3);
    QCOMPARE(Pixels::of(list.Picture(71), 16), Pixels::of(list.Picture(u"Half"_s), 16));
    QCOMPARE(Pixels::of(list.Picture(3), 16), Pixels::of(list.Picture(u"Inner"_s), 16));
    QVERIFY(Pixels::of(list.Picture(3), 16) != Pixels::of(list.Picture(71), 16));
}

void ImageListTest::keysAreCaseSensitive()
{
    ImageList list;
    list.Add(u"Inputs"_s, 1, m_half);
    QVERIFY(!list.Contains(u"inputs"_s));
    QVERIFY(list.Picture(u"INPUTS"_s).isNull());
    list.Add(u"inputs"_s, 2, m_inner);
    QCOMPARE(list.IndexOf(u"Inputs"_s), 1);
    QCOMPARE(list.IndexOf(u"inputs"_s), 2);
}

void ImageListTest::keysComeInTheOrderOfTheIndexes()
{
    ImageList list;
    list.Add(u"Last"_s, 100, m_half);
    list.Add(u"First"_s, 1, m_half);
    list.Add(u"Middle"_s, 61, m_half);
    QCOMPARE(list.Keys(), QStringList({u"First"_s, u"Middle"_s, u"Last"_s}));
}

void ImageListTest::refusals_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("file");

    QTest::newRow("empty key") << QString() << 2 << m_half;
    QTest::newRow("key in use") << u"Used"_s << 2 << m_half;
    QTest::newRow("index in use") << u"New"_s << 1 << m_half;
    QTest::newRow("index 0") << u"New"_s << 0 << m_half;
    QTest::newRow("negative index") << u"New"_s << -1 << m_half;
    QTest::newRow("no such file") << u"New"_s << 2 << m_folder.filePath(u"none.svg"_s);
    QTest::newRow("no such resource") << u"New"_s << 2 << u":/none.svg"_s;
    QTest::newRow("folder") << u"New"_s << 2 << m_folder.path();
    QTest::newRow("no file") << u"New"_s << 2 << QString();
}

void ImageListTest::refusals()
{
    QFETCH(QString, key);
    QFETCH(int, index);
    QFETCH(QString, file);
    ImageList list;
    list.Add(u"Used"_s, 1, m_half);

    QVERIFY(raises(list, key, index, file));
    QCOMPARE(list.Keys(), QStringList({u"Used"_s}));
    QCOMPARE(list.IndexOf(u"New"_s), 0);
    QVERIFY(!list.Contains(2));
    QCOMPARE(Pixels::of(list.Picture(1), 16), Pixels::of(picture(m_half), 16));
}

void ImageListTest::brokenFileIsRefused()
{
    ImageList list;
    QVERIFY(raises(list, u"New"_s, 1, write(u"words.svg"_s, "no drawing")));
    QVERIFY(raises(list, u"New"_s, 1, write(u"cut.svg"_s, "")));
    QVERIFY(raises(list, u"New"_s, 1, write(u"cut.png"_s, "\x89PNG\r\n\x1a\n")));
    QCOMPARE(list.Count(), 0);
}

void ImageListTest::iconOutlivesItsList()
{
    auto list = std::make_unique<ImageList>();
    list->Add(u"Half"_s, 1, m_half);
    const QIcon icon = list->Picture(1);
    list.reset();
    QPixmapCache::clear();
    QCOMPARE(Pixels::count(Pixels::of(icon, 16), Pixels::isSolid), 128);
}

void ImageListTest::sizeIsTheOneAskedFor_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<qreal>("ratio");
    for (const int size : sizes)
        for (const double ratio : ratios)
            QTest::addRow("%d at %g", size, ratio) << size << qreal(ratio);
}

void ImageListTest::sizeIsTheOneAskedFor()
{
    QFETCH(int, size);
    QFETCH(qreal, ratio);
    const QPixmap drawn = picture(m_half).pixmap(QSize(size, size), ratio);
    QCOMPARE(drawn.size(), QSize(size, size) * ratio);
    QCOMPARE(drawn.devicePixelRatio(), ratio);
    QCOMPARE(picture(m_half).actualSize(QSize(size, size)), QSize(size, size));
}

void ImageListTest::edgesAreSharpAtEverySize_data()
{
    sizeIsTheOneAskedFor_data();
}

void ImageListTest::edgesAreSharpAtEverySize()
{
    QFETCH(int, size);
    QFETCH(qreal, ratio);
    const QImage drawn = Pixels::of(picture(m_half), size, ratio);
    const int solid = Pixels::count(drawn, Pixels::isSolid);
    QCOMPARE(solid, drawn.width() / 2 * drawn.height());
    QCOMPARE(Pixels::count(drawn, Pixels::isPainted), solid);
    QCOMPARE(drawn.pixelColor(0, 0), red);
}

void ImageListTest::edgesAreSharpInAZoomedView()
{
    QImage view(64, 64, QImage::Format_ARGB32_Premultiplied);
    view.fill(Qt::transparent);
    {
        QPainter painter(&view);
        painter.scale(4, 4);
        picture(m_half).paint(&painter, 0, 0, 16, 16);
    }
    QCOMPARE(Pixels::count(view, Pixels::isSolid), 32 * 64);
    QCOMPARE(Pixels::count(view, Pixels::isPainted), 32 * 64);
}

void ImageListTest::placeIsSquareAndCentred()
{
    QImage view(32, 16, QImage::Format_ARGB32_Premultiplied);
    view.fill(Qt::transparent);
    {
        QPainter painter(&view);
        picture(m_half).paint(&painter, view.rect());
    }
    QCOMPARE(Pixels::count(view, Pixels::isPainted), 8 * 16);
    QCOMPARE(Pixels::count(view.copy(8, 0, 8, 16), Pixels::isSolid), 8 * 16);
    QCOMPARE(picture(m_half).actualSize(QSize(32, 16)), QSize(16, 16));
}

void ImageListTest::wideDrawingIsFittedAndCentred()
{
    const QString wide = write(u"wide.svg"_s,
                               R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 4">
        <rect fill="#d73337" width="8" height="4"/></svg>)");
    const QImage drawn = Pixels::of(picture(wide), 16);
    QCOMPARE(Pixels::count(drawn, Pixels::isPainted), 16 * 8);
    QCOMPARE(Pixels::count(drawn.copy(0, 4, 16, 8), Pixels::isSolid), 16 * 8);
}

void ImageListTest::noSizeGivesNoPixmap()
{
    QVERIFY(picture(m_half).pixmap(QSize(0, 0)).isNull());
    QVERIFY(picture(m_half).pixmap(QSize(16, 0)).isNull());
    QImage view(4, 4, QImage::Format_ARGB32_Premultiplied);
    view.fill(Qt::transparent);
    QPainter painter(&view);
    picture(m_half).paint(&painter, 0, 0, 0, 0);
    QVERIFY(!Pixels::count(view, Pixels::isPainted));
}

void ImageListTest::enormousSizeIsBounded()
{
    const QSize size = picture(m_half).pixmap(QSize(1'000'000, 1'000'000)).size();
    QVERIFY(!size.isEmpty());
    QVERIFY(size.width() <= 4096);

    QImage view(8, 8, QImage::Format_ARGB32_Premultiplied);
    view.fill(Qt::transparent);
    {
        QPainter painter(&view);
        painter.scale(100'000, 100'000);
        picture(m_half).paint(&painter, 0, 0, 16, 16);
    }
    QVERIFY(Pixels::all(view, Pixels::isSolid));
}

void ImageListTest::disabledIsGreyAndSeenOnAnyGround()
{
    const QImage drawn = Pixels::of(picture(m_half), 16, 1.0, QIcon::Disabled);
    const auto isGrey = [](QRgb pixel) {
        return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) -
                   std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) <
               16;
    };
    QVERIFY(Pixels::all(drawn, isGrey));
    for (const QColor &ground : {QColor(0xff, 0xff, 0xff), QColor(0x1e, 0x1e, 0x1e)}) {
        QCOMPARE(Pixels::countStandingOut(drawn, ground, 2.4), 128);
        QCOMPARE(Pixels::countStandingOut(drawn, ground, 3.0), 0);
    }
}

void ImageListTest::selectedTakesTheColourOfSelectedText()
{
    const QPalette former = QApplication::palette();
    for (const QColor &text : {QColor(Qt::white), QColor(Qt::black)}) {
        QPalette palette = former;
        palette.setColor(QPalette::HighlightedText, text);
        QApplication::setPalette(palette);
        const QImage drawn = Pixels::of(picture(m_half), 16, 1.0, QIcon::Selected);
        QCOMPARE(Pixels::count(drawn, [&](QRgb pixel) { return pixel == text.rgb(); }), 128);
        QCOMPARE(Pixels::count(drawn, Pixels::isPainted), 128);
    }
    QApplication::setPalette(former);
}

void ImageListTest::selectedFollowsThePaletteOfTheView()
{
    Row row(picture(m_half), QIcon::Selected);
    QPalette palette = row.palette();
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    row.setPalette(palette);
    QCOMPARE(row.grab().toImage().pixelColor(8, 16), QColor(Qt::yellow));
    QCOMPARE(row.grab().toImage().pixelColor(24, 16), QColor(Qt::black));
}

void ImageListTest::activeLooksLikeNormal()
{
    QCOMPARE(Pixels::of(picture(m_half), 16, 1.0, QIcon::Active), Pixels::of(picture(m_half), 16));
}

void ImageListTest::pressedIsTheNegativeInATile()
{
    const QImage drawn = Pixels::of(picture(m_inner, ImageList::Look::Pressed), 64);
    QCOMPARE(drawn.pixelColor(4, 32), red);
    QCOMPARE(drawn.pixelColor(60, 32), red);
    QVERIFY(!Pixels::isPainted(drawn.pixel(32, 32)));
    QVERIFY(!Pixels::isPainted(drawn.pixel(0, 0)));
    QVERIFY(drawn != Pixels::of(picture(m_inner), 64));
}

void ImageListTest::pressedOfAnEmptyDrawingIsHarmless()
{
    const QString nothing =
        write(u"nothing.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 4 4"/>)");
    QCOMPARE(Pixels::of(picture(nothing, ImageList::Look::Pressed), 16).size(), QSize(16, 16));
}

void ImageListTest::emptiedCacheIsRefilled()
{
    const QIcon icon = picture(m_half);
    const QImage before = Pixels::of(icon, 16);
    QPixmapCache::clear();
    QCOMPARE(Pixels::of(icon, 16), before);
}

void ImageListTest::equalPicturesOfTwoListsAreDrawnOnce()
{
    const QPixmap one = picture(m_half).pixmap(QSize(16, 16), 1.0);
    const QPixmap other = picture(m_half).pixmap(QSize(16, 16), 1.0);
    QCOMPARE(one.cacheKey(), other.cacheKey());
}

void ImageListTest::aFileThatHasChangedIsAnotherPicture()
{
    const QString file = write(u"changing.svg"_s, QByteArray(inkedSvg).replace("INK", "red"));
    const QIcon former = picture(file);
    QCOMPARE(Pixels::of(former, 16).pixelColor(8, 8), QColor(Qt::red));
    write(u"changing.svg"_s, QByteArray(inkedSvg).replace("INK", "blue"));
    QCOMPARE(Pixels::of(picture(file), 16).pixelColor(8, 8), QColor(Qt::blue));
    QCOMPARE(Pixels::of(former, 16).pixelColor(8, 8), QColor(Qt::red));
}

void ImageListTest::detachedCopyStillDraws()
{
    const QIcon icon = picture(m_half);
    QIcon copy = icon;
    copy.setIsMask(true); // detaches, which clones the engine
    QPixmapCache::clear();
    QCOMPARE(Pixels::of(copy, 16), Pixels::of(icon, 16));
}

ORVT_TEST(ImageListTest)
#include "ImageListTest.moc"
