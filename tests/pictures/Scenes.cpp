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
        {"code", &codeScene},
        {"combo", &comboScene},
        {"editor", &editorScene},
        {"find", &findScene},
        {"table-states", &tableStatesScene},
        {"tables", &tablesScene},
        {"tree", &treeScene},
    };
    return all;
}

void Sheet::add(const QString &caption, QWidget &shown)
{
    QApplication::processEvents();
    m_pictures.append({caption, shown.grab()});
}

// As wide as its column and as high as its row, the caption included.
QSize Sheet::cellOf(qsizetype place) const
{
    QSize cell;
    for (qsizetype other = 0; other < m_pictures.size(); ++other) {
        const QSize size = m_pictures.at(other).pixmap.deviceIndependentSize().toSize();
        if (other % m_columns == place % m_columns)
            cell.setWidth(std::max(cell.width(), size.width()));
        if (other / m_columns == place / m_columns)
            cell.setHeight(std::max(cell.height(), captionHeight + size.height()));
    }
    return cell;
}

QImage Sheet::image() const
{
    QList<QRect> cells;
    QRect all(0, 0, 200, gap);
    QPoint corner(gap, gap);
    for (qsizetype place = 0; place < m_pictures.size(); ++place) {
        cells.append(QRect(corner, cellOf(place)));
        all |= cells.last().adjusted(0, 0, gap, gap);
        const bool isLastOfRow = place % m_columns == m_columns - 1;
        corner = isLastOfRow ? QPoint(gap, all.bottom()) : cells.last().topRight() + QPoint(gap, 0);
    }
    const qreal ratio = qGuiApp->devicePixelRatio();
    QImage image(all.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    const QPalette palette = QGuiApplication::palette();
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    painter.setPen(palette.color(QPalette::WindowText));
    for (qsizetype place = 0; place < m_pictures.size(); ++place) {
        const QRect cell = cells.at(place);
        painter.drawText(QRect(cell.topLeft(), QSize(cell.width(), captionHeight)),
                         Qt::AlignVCenter, m_pictures.at(place).caption);
        painter.drawPixmap(cell.topLeft() + QPoint(0, captionHeight), m_pictures.at(place).pixmap);
    }
    return image;
}
