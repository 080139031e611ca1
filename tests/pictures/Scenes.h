#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QPixmap>

class QWidget;

// What a scene shows, one picture below the other, or row by row in columns.
class Sheet
{
public:
    void setColumns(int columns) { m_columns = columns; }
    void add(const QString &caption, QWidget &shown);

    QImage image() const;

private:
    struct Picture
    {
        QString caption;
        QPixmap pixmap;
    };

    QSize cellOf(qsizetype place) const;

    QList<Picture> m_pictures;
    int m_columns = 1;
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

void codeScene(Sheet &sheet);
void comboScene(Sheet &sheet);
void editorScene(Sheet &sheet);
void findScene(Sheet &sheet);
void tableStatesScene(Sheet &sheet);
void tablesScene(Sheet &sheet);
void treeScene(Sheet &sheet);
