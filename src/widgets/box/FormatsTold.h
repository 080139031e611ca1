#pragma once

#include <QtCore/QString>

#include <functional>

class QColor;
class QTextCharFormat;
class QTextDocument;

namespace ORVTListview {

// How a part of a document looks, in the words that assistive programs have for it.
struct FormatTold
{
    QString attributes; // "name:value;" each
    int start = 0;      // of what looks so
    int end = 0;
};

// At a position of the document; `colour` is that in which such a text is painted.
FormatTold formatTold(const QTextDocument &document, int position,
                      const std::function<QColor(const QTextCharFormat &format)> &colour);

} // namespace ORVTListview
