#pragma once

#include "editor/view/KeptPlaces.h"

#include <QtCore/QList>
#include <QtCore/QObject>

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

    bool isEmpty() const { return m_places.isEmpty(); }
    bool isOn(const QTextBlock &line) const;

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
    template <typename IsToGo>
    bool remove(const IsToGo &isToGo);
    void noteChange(int from, int removed, int added);

    RichTextBox &m_box;
    KeptPlaces m_places;
    QList<int> m_held; // the line of each, from 0, by its name, while lines change places
};

} // namespace ORVTListview
