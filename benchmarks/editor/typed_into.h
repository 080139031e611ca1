#pragma once

#include "support/keys.h"
#include "support/measure.h"
#include "support/painting.h"

class QAbstractScrollArea;

namespace ORVTListview {
class RichTextBox;
}

namespace ORVTListview::bench {

// An editor on the screen: the widget that takes the keys, and the one that shows the text.
class TypedInto
{
public:
    explicit TypedInto(QAbstractScrollArea &editor);

    // The keys go to one window; the other editor's rests meanwhile.
    void takeFocus();

    // A key from the event to the painted picture; the editor repaints what it itself
    // asks for.
    void press(const Key &key);
    void timeKeys(const QList<Key> &keys, Times &times);
    void timeKeysAtWork(const QList<Key> &keys, Times &times);

    // A page down, to the painted picture. False where the text ends.
    bool scrollOn();

private:
    QAbstractScrollArea &m_editor;
    PaintWatch m_watch;
};

// The end of the first line without an indent in the second half of a text.
qsizetype placeToType(const QString &text);
void putCaret(RichTextBox &box, qsizetype place);

} // namespace ORVTListview::bench
