#pragma once

#include <QtCore/QString>

class QTextDocument;

namespace ORVTListview {

// How a part of a document looks, in the words that assistive programs have for it.
struct FormatTold
{
    QString attributes; // "name:value;" each
    int start = 0;      // of what looks so
    int end = 0;
};

// At a position of the document.
FormatTold formatTold(const QTextDocument &document, int position);

} // namespace ORVTListview
