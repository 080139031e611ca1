#pragma once

#include "editor/rules/language/WordClass.h"

#include <QtCore/QStringView>

namespace ORVTListview {

// A word, bracket or comment of a program line. Shown may differ from what stands
// in the line: listed spelling, and the blank that sets a bracket off.
struct ColourRun
{
    qsizetype offset = 0; // of the source, in its line
    qsizetype length = 0;
    qint32 colourIndex = AutomaticColour;
    QStringView shown;
};

// Receives a coloured program in order. Blanks and tabs continue in the colour of
// the run before them, also across line ends.
class ColourSink
{
public:
    virtual ~ColourSink();
    virtual void run(const ColourRun &run) = 0;
    virtual void blank() = 0;
    virtual void tab() = 0;
    virtual void lineEnd() = 0;
};

} // namespace ORVTListview
