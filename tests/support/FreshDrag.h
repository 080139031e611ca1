#pragma once

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDrag>
#include <QtGui/QGuiApplication>

// Some platforms keep the action of a drag for the next, and tell of none that is the
// same. After a drag that finds no place, each begins as the first does.
inline void forgetFormerDrags()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("minimal")))
        return;
    QObject nobody;
    auto *drag = new QDrag(&nobody); // the toolkit deletes it
    drag->setMimeData(new QMimeData);
    QTimer::singleShot(0, &nobody, &QDrag::cancel);
    drag->exec();
}
