#include "support/Pixels.h"
#include "support/TestProgram.h"
#include "widgets/look/CompiledDrawings.h"
#include "widgets/look/FileDrawing.h"
#include <ORVTListview/ImageList.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QDir sources()
{
    return QDir(QStringLiteral(ORVT_SOURCE_DIR "/src/widgets/look/pictures"), u"*.svg"_s);
}

QImage drawn(const Drawing &drawing, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawing.paint(&painter, QRectF(0, 0, side, side));
    return image;
}

// The largest difference of a channel of any pixel.
int difference(const QImage &one, const QImage &other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor left = one.pixelColor(x, y);
            const QColor right = other.pixelColor(x, y);
            for (const int step : {left.red() - right.red(), left.green() - right.green(),
                                   left.blue() - right.blue()})
                largest = std::max(largest, std::abs(step));
        }
    }
    return largest;
}

} // namespace

class DrawingsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCompiledDrawingIsItsFile_data();
    void aCompiledDrawingIsItsFile();
    void everyFileIsCompiledAndNothingElse();
    void aSizeThatIsNotSquareIsKept();
    void aPictureOfPointsServesToo();
};

void DrawingsTest::aCompiledDrawingIsItsFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("side");
    for (const QFileInfo &file : sources().entryInfoList())
        for (const int side : {16, 24, 40, 128})
            QTest::addRow("%s at %d", qPrintable(file.baseName()), side) << file.baseName() << side;
}

// The toolkit's own reader of SVG is the judge.
void DrawingsTest::aCompiledDrawingIsItsFile()
{
    QFETCH(QString, name);
    QFETCH(int, side);
    const auto ours = CompiledDrawings::all().value(name);
    const auto theirs = FileDrawing::of(sources().filePath(name + u".svg"_s));
    QVERIFY(ours);
    QVERIFY(theirs);
    QCOMPARE(ours->size(), theirs->size());
    const int found = difference(drawn(*ours, side), drawn(*theirs, side));
    QVERIFY2(found <= 8, qPrintable(QString::number(found)));
}

void DrawingsTest::everyFileIsCompiledAndNothingElse()
{
    QStringList names = CompiledDrawings::all().keys();
    names.sort();
    QStringList files;
    for (const QFileInfo &file : sources().entryInfoList(QDir::Files, QDir::Name))
        files << file.baseName();
    QVERIFY(files.size() >= 22);
    files.sort();
    QCOMPARE(names, files);
}

void DrawingsTest::aSizeThatIsNotSquareIsKept()
{
    const PathDrawing wide(QSizeF(8, 4),
                           {{0xff0000ff, 0, 1, Qt::WindingFill, "R", {0, 0, 8, 4, 0}}});
    QCOMPARE(wide.size(), QSizeF(8, 4));
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        wide.paint(&painter, QRectF(0, 4, 16, 8));
    }
    QCOMPARE(Pixels::count(image, Pixels::isSolid), 16 * 8);
    QCOMPARE(image.pixelColor(0, 4), QColor(Qt::blue));
}

void DrawingsTest::aPictureOfPointsServesToo()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(u"points.png"_s);
    QImage points(2, 2, QImage::Format_ARGB32);
    points.fill(Qt::red);
    QVERIFY(points.save(file));
    ImageList list;
    list.Add(u"Points"_s, 1, file);
    QVERIFY(QFile::remove(file)); // it was read at once
    const QImage shown = Pixels::of(list.Picture(1), 16);
    QCOMPARE(Pixels::count(shown, Pixels::isSolid), 16 * 16);
    QCOMPARE(shown.pixelColor(8, 8), QColor(Qt::red));
}

ORVT_TEST(DrawingsTest)
#include "DrawingsTest.moc"
