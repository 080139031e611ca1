#pragma once

#include <QtWidgets/QWidget>

namespace ORVTListview {

class ImageList;

// A picture of an image list, at its natural size or fitted into the widget.
class PictureBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString PictureKey READ PictureKey WRITE setPictureKey)
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)

public:
    // The list is kept by reference and outlives the box.
    PictureBox(const ImageList &images, QWidget *parent);

    // A key that the list has no picture for shows nothing.
    QString PictureKey() const { return m_pictureKey; }
    void setPictureKey(const QString &key);

    QString Tag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const ImageList &m_images;
    QString m_pictureKey;
    QString m_tag;
};

} // namespace ORVTListview
