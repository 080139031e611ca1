#pragma once

#include <QtGui/QIconEngine>

#include <memory>

namespace ORVTListview {

class Drawing;

// Draws one picture of an ImageList, or it in negative as on a pressed button. Drawn pixmaps are
// kept in Qt's pixmap cache under the drawing's name, so that equal pictures of several lists are
// drawn once.
class PictureEngine final : public QIconEngine
{
public:
    PictureEngine(QString name, std::shared_ptr<const Drawing> drawing, bool isPressed);
    ~PictureEngine() override;

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override;
    QIconEngine *clone() const override;

private:
    PictureEngine(const PictureEngine &other);

    QPixmap cached(int side, const QColor &tint);
    QImage drawn(int side, const QColor &tint);
    QImage plain(int side, const QRectF &area);
    QImage pressed(int side);
    QRectF fitted(const QRectF &area);

    QString m_name;
    std::shared_ptr<const Drawing> m_drawing; // shared by clones
    bool m_isPressed;
};

} // namespace ORVTListview
