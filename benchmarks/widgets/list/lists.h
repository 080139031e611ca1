#pragma once

#include "support/measure.h"
#include "support/painting.h"

#include <QtCore/QtGlobal>

#include <malloc.h>

// What the benchmarks of lists measure alike.

namespace ORVTListview::bench {

// Bytes that the program has taken and not given back.
inline double heap()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// Until the list has been painted.
template <typename List>
double timedPainted(List &list, void (List::*work)())
{
    PaintWatch watch(*list.viewport());
    return timed([&] {
        (list.*work)();
        if (!watch.finishPainting())
            qFatal("the list was not painted");
    });
}

} // namespace ORVTListview::bench
