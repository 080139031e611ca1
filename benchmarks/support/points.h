#pragma once

#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

#include <QtCore/QStringList>

namespace ORVTListview::bench {

// A project with 350 points and a family of 16 timers.
struct Points
{
    Points();

    // Makes them what the thread's colouring knows, while they live.
    void teachThread();

    PointList variables;
    PointList constants;
    PointList inputs;
    PointList outputs;
    PointList nvis;
    IndexedNameList timers;
};

// The project's names, or the language's words, that have a colour index.
QStringList wordsOf(qint32 colourIndex);

// Names as a project has them; each index gives another one, and the first 350
// are the project's.
QString pointName(qsizetype index);

// Of numbers from 1 to 16.
QString timerName(int number);
constexpr int timerCount = 16;

} // namespace ORVTListview::bench
