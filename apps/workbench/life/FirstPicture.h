#pragma once

#include <QtCore/QObject>

class QWidget;

namespace ORVTListview {

// Tells when a window has been painted for the first time, or is minimised, so that what takes
// longer comes behind its picture. Nothing is told of a window that is gone from the screen by
// then.
class FirstPicture : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    explicit FirstPicture(QWidget &window);

Q_SIGNALS:
    void seen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tell();

    QWidget &m_window;
};

} // namespace ORVTListview
