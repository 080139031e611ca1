#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/qglobal.h>

#include <span>

namespace ORVTListview {

// Where a text is shown, which is what limits its length.
enum class TextPlace : qint32 {
    Caption, // of a table, a page or a node of the tree
    ColumnHeader,
    Label, // before a field of a dialog
    Button,
    CheckBox,
    Menu,
    Title, // of a window
    Status,
    ToolTip,
    Message,
};

// The most characters a text may have there without being cut off or stretching
// what it stands in.
ORVT_CORE_EXPORT qsizetype longestText(TextPlace place);

// A text of the library as it is passed to the lookup.
struct LibraryText
{
    const char *english; // ASCII
    TextPlace place;     // the narrowest, if it is shown in several
};

// Every text that the library shows, each once. "#", the head of the number
// column, is never translated and not among them.
ORVT_CORE_EXPORT std::span<const LibraryText> libraryTexts();

} // namespace ORVTListview
