#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

namespace ORVTListview {

// Lines that change places. Line `first` + i is what line `first` + from[i] was, counted
// from 0.
struct MovedLines
{
    int first = 0;
    QList<qsizetype> from;

    bool contains(int line) const { return line >= first && line - first < from.size(); }

    // Where each of them has come to, from the first on.
    QList<int> places() const
    {
        QList<int> places(from.size());
        for (qsizetype i = 0; i < from.size(); ++i)
            places[from[i]] = first + static_cast<int>(i);
        return places;
    }
};

// Tells what is kept beside the text that lines change places; the text itself is taken
// away in one place and put in at another.
class LineMoves final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    // Before the change; within it, when each line is in its place; and behind it, when
    // the selection is, too.
    void about(const MovedLines &lines);
    void done(const MovedLines &lines);
    void settled(const MovedLines &lines);
};

} // namespace ORVTListview
