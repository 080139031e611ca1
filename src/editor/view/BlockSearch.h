#pragma once

#include "editor/rules/structure/BlockWalk.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtGui/QTextCursor>

#include <optional>

namespace ORVTListview {

// Looks for the block of a program to which an IF, ELSE or ENDIF belongs. What lies
// near is found at once, the rest in portions while the program is idle. To be started
// anew when the text changes.
class BlockSearch final : public QObject
{
    Q_OBJECT

public:
    struct Place
    {
        int line = 0; // from 0
        TextPiece piece;

        friend bool operator==(const Place &, const Place &) = default;
    };

    explicit BlockSearch(QObject *parent = nullptr);

    // At a place of a line, from the start of a word to its end; nothing else has a block.
    void start(const QTextBlock &line, int offset);
    void clear();

    // The word at the caret first; none without one.
    const QList<Place> &places() const { return m_places; }

    // The lines from the first word found to the last.
    int firstLine() const { return m_firstLine; }
    int lastLine() const { return m_lastLine; }

    // Whether the end is known to be missing.
    bool isBroken() const { return m_isBroken; }

Q_SIGNALS:
    void changed();

private:
    struct Way
    {
        BlockWalk walk;
        QTextCursor next; // at the line to be looked at; null at the end
    };

    void begin(std::optional<Way> &way, BlockWalk::Direction direction, const QTextBlock &line,
               const BlockWord &word);
    void goOn(std::optional<Way> &way, BlockWalk::Direction direction, int lines);
    void read(Way &way, const QTextBlock &line, const QList<BlockWord> &words);
    void goOnBothWays(int lines);

    QList<Place> m_places;
    int m_firstLine = 0;
    int m_lastLine = 0;
    bool m_isBroken = false;
    std::optional<Way> m_up;
    std::optional<Way> m_down;
    QTimer m_timer;
};

} // namespace ORVTListview
