#pragma once

#include <QtWidgets/QToolButton>

namespace ORVTListview {

class ImageList;

// A button that is nothing but a picture, and another one while it is held down.
// It answers the left mouse button, Space and Enter, each on release; a release
// outside calls the click off.
class PictureButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QString PictureKey READ PictureKey)
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)

public:
    // The list is kept by reference and outlives the button.
    PictureButton(const ImageList &images, QWidget *parent);

    // The key of the picture shown at the moment. A key that the list has no
    // picture for shows nothing.
    QString PictureKey() const { return isDown() ? m_pressedKey : m_key; }
    void setPictureKeys(const QString &key, const QString &pressedKey);

    QString Tag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }

    QSize sizeHint() const override;

Q_SIGNALS:
    // As clicked, but once the toolkit's work on the button is over: the receiver may
    // destroy it.
    void pressedAndReleased();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    void noteClick();
    void raiseNoted();

    const ImageList &m_images;
    QString m_key;
    QString m_pressedKey;
    QString m_tag;
    bool m_isAtWork = false; // on an event
    bool m_isClicked = false;
};

} // namespace ORVTListview
