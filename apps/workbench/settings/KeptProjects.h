#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

class QSettings;

namespace ORVTListview {

class MainWindow;

// What users leave in a project beside its files is there again when they open it the next
// time: the lines of the trend, and the bookmarks of the programs. Of the projects that were
// left last.
class KeptProjects : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window; the store outlives it.
    KeptProjects(QSettings &store, MainWindow &window);

    // Of the project that is open; it comes by itself when that is left.
    void write();

private:
    struct Kept
    {
        QString file;
        QStringList trend; // "Inputs/Temp1", and "Timers/#3" for the third one, without a name
        bool showsTrend = false;
        QStringList bookmarks; // "1/15": number of the program, line from 1
    };

    QString fileName() const;
    QList<Kept> all() const;
    Kept now() const;
    QStringList bookmarks() const;
    void read();
    void setBookmarks(const QStringList &bookmarks) const;

    QSettings &m_store;
    MainWindow &m_window;
};

} // namespace ORVTListview
