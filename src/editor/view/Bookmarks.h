#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QTextCursor>

class QPlainTextEdit;

namespace ORVTListview {

struct LineMark;
struct MovedLines;

// Lines that the user wants to come back to. A mark goes with its line's text.
class Bookmarks final : public QObject
{
    Q_OBJECT

public:
    explicit Bookmarks(QPlainTextEdit &box);

    bool isEmpty() const { return m_marks.isEmpty(); }
    bool isOn(const QTextBlock &line) const;

    // On the line of the caret.
    void toggle();

    // To the next marked line below that of the caret, going round.
    bool goToNext();

    // When lines change places: before, and when they have.
    void holdLines(const MovedLines &lines);
    void putBack(const MovedLines &lines);

    QList<LineMark> marks() const;
    static QColor colourOn(const QColor &ground);

Q_SIGNALS:
    void changed();

private:
    void noteChange(int from, int removed, int added);

    QPlainTextEdit &m_box;
    QList<QTextCursor> m_marks; // in no order
    QList<int> m_held;          // the line of each, from 0
};

} // namespace ORVTListview
