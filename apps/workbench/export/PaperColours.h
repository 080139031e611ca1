#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QHash>
#include <QtCore/QString>

namespace ORVTListview {

// The way back from the colours that the screen needs to those that the project gives its
// words: what leaves the window, for a report, a mail, a printer, stands on white.
class PaperColours
{
public:
    PaperColours() = default; // they are the same

    // No two classes of words that differ on paper may have one colour on the screen.
    PaperColours(const RichTextSettings &paper, const RichTextSettings &screen);

    // RTF that a box has written, in the colours of paper.
    QString onPaper(const QString &rtf) const;

private:
    QHash<qint32, qint32> m_paperOf; // by the colour on the screen
};

} // namespace ORVTListview
