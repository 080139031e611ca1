#include "pictures/Scenes.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

constexpr int gap = 12;
constexpr int captionHeight = 20;

} // namespace

const QList<Scene> &scenes()
{
    static const QList<Scene> all{
        {"combo", &comboScene},
        {"find", &findScene},
    };
    return all;
}

void Sheet::add(const QString &caption, QWidget &shown)
{
    QApplication::processEvents();
    m_pictures.append({caption, shown.grab()});
}

QImage Sheet::image() const
{
    QSize size(200, gap);
    for (const Picture &picture : m_pictures) {
        const QSize needed = picture.pixmap.deviceIndependentSize().toSize();
        size.setWidth(std::max(size.width(), needed.width() + 2 * gap));
        size.rheight() += captionHeight + needed.height() + gap;
    }
    const qreal ratio = qGuiApp->devicePixelRatio();
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    const QPalette palette = QGuiApplication::palette();
    image.fill(palette.color(QPalette::Dark));
    QPainter painter(&image);
    painter.setPen(palette.color(QPalette::BrightText));
    int y = gap;
    for (const Picture &picture : m_pictures) {
        painter.drawText(QRect(gap, y, size.width(), captionHeight), Qt::AlignVCenter,
                         picture.caption);
        y += captionHeight;
        painter.drawPixmap(gap, y, picture.pixmap);
        y += picture.pixmap.deviceIndependentSize().toSize().height() + gap;
    }
    return image;
}
