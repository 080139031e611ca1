#pragma once

#include "editor/rules/structure/Folding.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>

class QTextBlock;
class QTextDocument;

namespace ORVTListview {

// Finds the IFs that no ENDIF ends, while the program is idle: in portions, anew after each
// change. Until it has looked, a block counts as ended.
class OpenBlocks final : public QObject
{
    Q_OBJECT

public:
    explicit OpenBlocks(QTextDocument &text);

    void start();
    void stop();

    // Whether a line begins a block that is known to have no end.
    bool contains(const QTextBlock &line) const;

Q_SIGNALS:
    void changed();

private:
    void noteChange(int from);
    void lookOn();

    QTextDocument &m_text;
    QTimer m_timer;
    QList<int> m_lines;     // counted from 0, from the top
    ProgramBlocks m_blocks; // so far
    int m_next = 0;         // to be looked at
    int m_lineCount = 0;
};

} // namespace ORVTListview
