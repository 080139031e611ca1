#include "widgets/look/PictureEngine.h"

#include "widgets/look/Drawing.h"
#include "widgets/look/SelectionLook.h"

#include <QtCore/QtMath>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

// Beyond this a picture is scaled up: a zoomed or printed view must not take
// memory without bound.
constexpr int largestSide = 2048;

// Pictures are drawn on a grid of so many units.
constexpr int grid = 16;

// Faint enough to look switched off, and still seen on white and on near black.
constexpr QRgb disabledTint = 0xb17c7f84;

// The view that is painted on knows whether its window is active and may have a
// palette of its own; a bare pixmap has only the application's.
QColor selectedInk(const QPainter *painter)
{
    const auto *view = dynamic_cast<const QWidget *>(painter ? painter->device() : nullptr);
    if (isSelectionLight(view))
        return {};
    const QPalette palette = view ? view->palette() : QGuiApplication::palette();
    return palette.color(QPalette::HighlightedText);
}

// An invalid colour leaves the picture its own.
QColor tintFor(QIcon::Mode mode, const QPainter *painter)
{
    switch (mode) {
    case QIcon::Disabled:
        return QColor::fromRgba(disabledTint);
    case QIcon::Selected:
        return selectedInk(painter);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return {};
}

QImage blank(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void fill(QImage *image, QPainter::CompositionMode mode, const QColor &colour)
{
    QPainter painter(image);
    painter.setCompositionMode(mode);
    painter.fillRect(image->rect(), colour);
}

// The mean of what is painted, each pixel weighing as much as it covers.
QColor accentOf(const QImage &image)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            red += pixel.red() * pixel.alpha();
            green += pixel.green() * pixel.alpha();
            blue += pixel.blue() * pixel.alpha();
            alpha += pixel.alpha();
        }
    }
    return alpha == 0 ? QColor(Qt::transparent) : QColor(red / alpha, green / alpha, blue / alpha);
}

// Logical to device pixels, a view's zoom included.
qreal scaleOf(const QPainter &painter)
{
    return qSqrt(qAbs(painter.deviceTransform().determinant()));
}

} // namespace

PictureEngine::PictureEngine(QString name, std::shared_ptr<const Drawing> drawing, bool isPressed)
    : m_name(std::move(name))
    , m_drawing(std::move(drawing))
    , m_isPressed(isPressed)
{
}

PictureEngine::PictureEngine(const PictureEngine &other) = default;
PictureEngine::~PictureEngine() = default;

void PictureEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                          QIcon::State /*state*/)
{
    // QIcon has made the place square, after actualSize().
    const int side = std::min(qRound(rect.width() * scaleOf(*painter)), largestSide);
    if (side < 1)
        return;
    const QPixmap picture = cached(side, tintFor(mode, painter));
    const bool wasSmooth = painter->testRenderHint(QPainter::SmoothPixmapTransform);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(rect, picture, picture.rect());
    painter->setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
}

QPixmap PictureEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const int side = std::min(actualSize(size, mode, state).width(), largestSide);
    return side < 1 ? QPixmap() : cached(side, tintFor(mode, nullptr));
}

QSize PictureEngine::actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    const int side = std::min(size.width(), size.height());
    return {side, side};
}

QString PictureEngine::key() const
{
    return u"ORVTListview.Picture"_s;
}

QIconEngine *PictureEngine::clone() const
{
    return new PictureEngine(*this);
}

QPixmap PictureEngine::cached(int side, const QColor &tint)
{
    const QRgb fillColour = tint.isValid() ? tint.rgba() : 0;
    const QString name =
        u"%1|%2|%3|%4|"_s.arg(key(), QString::number(static_cast<int>(m_isPressed)),
                              QString::number(side), QString::number(fillColour)) +
        m_name;
    QPixmap picture;
    if (!QPixmapCache::find(name, &picture)) {
        picture = QPixmap::fromImage(drawn(side, tint));
        QPixmapCache::insert(name, picture);
    }
    return picture;
}

QImage PictureEngine::drawn(int side, const QColor &tint)
{
    QImage image = m_isPressed ? pressed(side) : plain(side, QRectF(0, 0, side, side));
    if (tint.isValid())
        fill(&image, QPainter::CompositionMode_SourceIn, tint);
    return image;
}

QImage PictureEngine::plain(int side, const QRectF &area)
{
    QImage image = blank(side);
    QPainter painter(&image);
    m_drawing->paint(&painter, fitted(area));
    return image;
}

// A tile of the picture's own colour out of which the picture is cut.
QImage PictureEngine::pressed(int side)
{
    const qreal unit = qreal(side) / grid;
    const QImage picture = plain(side, QRectF(2 * unit, 2 * unit, 12 * unit, 12 * unit));
    const QColor accent = accentOf(plain(grid, QRectF(0, 0, grid, grid)));
    QImage image = blank(side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(0, 0, side, side), 3 * unit, 3 * unit);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawImage(0, 0, picture);
    return image;
}

// The drawing's own proportions, centred in the area.
QRectF PictureEngine::fitted(const QRectF &area)
{
    const QSizeF size = m_drawing->size().scaled(area.size(), Qt::KeepAspectRatio);
    QRectF fit(QPointF(), size);
    fit.moveCenter(area.center());
    return fit;
}

} // namespace ORVTListview
