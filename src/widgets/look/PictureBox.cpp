#include "widgets/look/PictureBox.h"

#include <ORVTListview/ImageList.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

namespace ORVTListview {

PictureBox::PictureBox(const ImageList &images, QWidget *parent)
    : QWidget(parent)
    , m_images(images)
{
}

void PictureBox::setPictureKey(const QString &key)
{
    if (key == m_pictureKey)
        return;
    m_pictureKey = key;
    update();
}

QSize PictureBox::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    return {side, side};
}

void PictureBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_images.Picture(m_pictureKey)
        .paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace ORVTListview
