#pragma once

#include "editor/view/KeptLines.h"

namespace ORVTListview {

struct LineMark;

// Lines that the user wants to come back to.
class Bookmarks final : public KeptLines
{
    Q_OBJECT

public:
    explicit Bookmarks(RichTextBox &box);

    // On the line of the caret.
    void toggle();

    // To the next marked line below that of the caret, going round.
    bool goToNext();

    // By their lines, which count from 1, from the top. Lines that the text has not are passed
    // over.
    QList<qint32> list() const;
    void set(const QList<qint32> &lines);

    QList<LineMark> marks() const;
    static QColor colourOn(const QColor &ground);
};

} // namespace ORVTListview
