#pragma once

#include <QtCore/QString>

namespace ORVTListview {
class ORVListView;
}

namespace ORVTListview::bench {

// How much there is to be shown beside a program: problems and bookmarks, evenly over its
// lines, and names with values, of which the project's come first.
struct ViewLoad
{
    int problems = 0;
    int bookmarks = 0;
    int values = 0;
};

// Switches all of an editor's code view on, or off again, but for the list of words that
// opens by itself: it is a window of its own. The size of the text stays.
void showAll(ORVListView &editor, const ViewLoad &load);
void showNothing(ORVListView &editor);

// The names of what is off.
QString whatIsOff(ORVListView &editor);

} // namespace ORVTListview::bench
