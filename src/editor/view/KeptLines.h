#pragma once

#include "editor/view/KeptPlaces.h"

#include <QtCore/QList>
#include <QtCore/QObject>

namespace ORVTListview {

class RichTextBox;
struct MovedLines;

// Lines of a box that are marked. A mark moves with its line and is gone when that is; with
// the whole text all go.
class KeptLines : public QObject
{
    Q_OBJECT

public:
    bool isEmpty() const { return m_places.isEmpty(); }
    bool isOn(const QTextBlock &line) const { return firstOn(line) < endOn(line); }

    // When lines change places: before, and when they have.
    void holdLines(const MovedLines &lines);
    void putBack(const MovedLines &lines);
    void tellMoved(const MovedLines &lines);

Q_SIGNALS:
    void changed();

protected:
    explicit KeptLines(RichTextBox &box);

    RichTextBox &box() const { return m_box; }
    const KeptPlaces &places() const { return m_places; }

    // A line may have several; each keeps the number that it is given here.
    struct Numbered
    {
        QTextBlock line;
        qsizetype number = 0;
    };
    void setLines(const QList<Numbered> &lines);
    QList<Numbered> lines() const; // from the top

    // Those of a line, among all from the top.
    qsizetype firstOn(const QTextBlock &line) const;
    qsizetype endOn(const QTextBlock &line) const;
    qsizetype numberAt(qsizetype i) const { return m_numbers[m_places.nameAt(i)]; }

private:
    void noteChange(int from, int removed, int added);

    RichTextBox &m_box;
    KeptPlaces m_places;
    QList<qsizetype> m_numbers; // by the names of the places
    QList<int> m_held;          // the line of each, from 0, the same way, while lines change places
};

} // namespace ORVTListview
