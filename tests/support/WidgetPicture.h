#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

// The widget with a pixel for each of its own, whatever the scale of the screen.
inline QImage pictureOf(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    widget.render(&image);
    return image;
}
