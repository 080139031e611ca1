#pragma once

#include "project/controller/Controller.h"
#include "workbench/reading/ReadingSettings.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

class QMainWindow;
class QMenuBar;

namespace ORVTListview {

class ORVListView;
class PointReading;
class PointTables;
class ProjectDocument;
class ReadingStatus;
class Trend;
class TrendDock;

// What a window has to do with a controller: it reads the values, shows how far it is, and
// draws a trend of them.
class ControllerPart : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window, whose status bar and docks it uses.
    ControllerPart(ProjectDocument &document, QMainWindow &window);
    ~ControllerPart() override;

    PointReading &reading() const { return *m_reading; }

    // Tables that show what is read, and ask for it. Any number of them; each may go.
    void serve(ORVListView &list, PointTables &tables);

    void addMenu(QMenuBar &menus);

    // Draws the points of a table, the first ones of many.
    void drawAll(LwType type);

    // What is drawn, and whether it is seen; for the next time that the project is opened. Points
    // that there are not are passed over.
    struct KeptTrend
    {
        QList<AskedPoint> points;
        bool isShown = false;
    };
    KeptTrend trend() const;
    void drawAgain(const KeptTrend &kept);

    // A trend of nothing takes no room.
    void hideEmptyTrend();

    void setSettings(const ReadingSettings &settings);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    // The user has decided anew.
    void settingsChosen(const ORVTListview::ReadingSettings &settings);

private:
    void choose();
    void setCyclic(bool on);
    void draw();
    void drawRows(LwType type, const QList<qsizetype> &rows);
    void showTrend();
    void followTrend();
    void tell(const QString &text, int milliseconds);

    ProjectDocument &m_document;
    QMainWindow &m_window;
    SimulatedController *m_controller;
    PointReading *m_reading;
    ReadingStatus *m_status;
    Trend *m_trend;
    TrendDock *m_dock;
    ReadingSettings m_settings;
    QList<QPointer<PointTables>> m_tables;
    bool m_draws = false; // any line
};

} // namespace ORVTListview
