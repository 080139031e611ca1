#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QTextCursor>

namespace ORVTListview {

class RichTextBox;
struct LineMark;
struct MovedLines;

// Lines that the user wants to come back to. A mark moves with its line and is gone when
// that is.
class Bookmarks final : public QObject
{
    Q_OBJECT

public:
    explicit Bookmarks(RichTextBox &box);

    bool isEmpty() const { return m_marks.isEmpty(); }
    bool isOn(const QTextBlock &line) const { return firstOn(line) != m_marks.cend(); }

    // On the line of the caret.
    void toggle();

    // To the next marked line below that of the caret, going round.
    bool goToNext();

    // When lines change places: before, and when they have.
    void holdLines(const MovedLines &lines);
    void putBack(const MovedLines &lines);
    void tellMoved(const MovedLines &lines);

    QList<LineMark> marks() const;
    static QColor colourOn(const QColor &ground);

Q_SIGNALS:
    void changed();

private:
    // A whole line with its end. The last line has none, so that without a letter
    // nothing of it is seen to go.
    struct Mark
    {
        explicit Mark(const QTextBlock &line);

        QTextBlock line() const;
        bool isGone() const { return isSeen && !place.hasSelection(); }

        QTextCursor place;
        bool isSeen = false;
    };

    using Place = QList<Mark>::const_iterator;

    Place firstOn(const QTextBlock &line) const; // the end for none
    void fit(int from, int to);
    void sort();
    void noteChange(int from, int removed, int added);

    RichTextBox &m_box;
    QList<Mark> m_marks; // from the top
    QList<int> m_held;   // the line of each, from 0, while lines change places
};

} // namespace ORVTListview
