#pragma once

#include "widgets/box/ChangedRanges.h"

#include <QtCore/QList>
#include <QtCore/QObject>

class QTextDocument;

namespace ORVTListview {

// Which lines of a box are known to be as finishing or colouring them all leaves them, in
// text and colours, or will be when they get their colours: those that nothing has changed
// since all were.
class SettledLines final : public QObject
{
    Q_OBJECT

public:
    explicit SettledLines(QTextDocument &document);

    void settleAll();
    void unsettleAll();

    // From one line to another, counted from 0; so many more than when all were settled.
    struct Range
    {
        int first = 0;
        int last = 0;
        int grown = 0;
    };

    // Otherwise it can be any line that is not settled.
    bool areKnown() const { return m_isKnown; }

    // The others, from the top. None is in two ranges.
    QList<Range> unsettled() const;

private:
    QTextDocument &m_document;
    ChangedRanges m_changed;
    bool m_isKnown = false;
};

} // namespace ORVTListview
