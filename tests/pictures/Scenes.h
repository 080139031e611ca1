#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QPixmap>

class QWidget;

// What a scene shows, one picture below the other.
class Sheet
{
public:
    void add(const QString &caption, QWidget &shown);

    QImage image() const;

private:
    struct Picture
    {
        QString caption;
        QPixmap pixmap;
    };
    QList<Picture> m_pictures;
};

// Shows some of the library's widgets in the language, colours and scale in force.
// A scene begins with a fresh thread state that knows the language. To add one,
// write it in a file of its own and name it in Scenes.cpp.
struct Scene
{
    const char *name;
    void (*show)(Sheet &sheet);
};

const QList<Scene> &scenes();

void comboScene(Sheet &sheet);
void findScene(Sheet &sheet);
