#include "pictures/Comparison.h"

#include "base/ThreadState.h"
#include "pictures/Scenes.h"
#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QDir>
#include <QtCore/QTextStream>
#include <QtGui/QFont>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdlib>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A step of a colour that nobody sees, and so many pixels of a sheet: another version of
// the toolkit rounds otherwise. A line or a frame has more.
constexpr int mostSteps = 8;
constexpr int mostPixels = 15;

bool isAlike(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))}) <= mostSteps;
}

// How many pixels differ, which are red in the picture of the difference.
int differing(const QImage &kept, const QImage &drawn, QImage &difference)
{
    const QSize size = kept.size().expandedTo(drawn.size());
    difference = QImage(size, QImage::Format_RGB32);
    difference.fill(Qt::white);
    int pixels = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isInBoth = kept.valid(x, y) && drawn.valid(x, y);
            if (isInBoth && isAlike(kept.pixel(x, y), drawn.pixel(x, y)))
                continue;
            difference.setPixelColor(x, y, Qt::red);
            ++pixels;
        }
    }
    return pixels;
}

bool isAsKept(const Scene &scene, const QDir &kept, const QDir &drawn)
{
    const ThreadState::Fresh state;
    TranslatedTexts texts(QLocale(QLocale::English));
    setTextProvider(&texts);
    Sheet sheet;
    scene.show(sheet);
    const QString name = QString::fromLatin1(scene.name);
    const QString file = name + u".png"_s;
    const QImage image = sheet.image();
    QImage difference;
    const int pixels = differing(QImage(kept.filePath(file)), image, difference);
    if (pixels <= mostPixels)
        return true;
    image.save(drawn.filePath(file));
    difference.save(drawn.filePath(name + u"-difference.png"_s));
    QTextStream(stdout) << file << ": " << pixels << " pixels differ, see " << drawn.filePath(file)
                        << '\n';
    return false;
}

} // namespace

int compareSheets(const QDir &kept, const QDir &drawn)
{
    QDir(drawn).removeRecursively();
    if (!QDir().mkpath(drawn.path()))
        return 1;
    QApplication::setFont(QFont(u"DejaVu Sans"_s, 9));
    QApplication::setCursorFlashTime(0);
    bool isAll = true;
    for (const Scene &scene : scenes())
        isAll = isAsKept(scene, kept, drawn) && isAll;
    return isAll ? 0 : 1;
}
