#pragma once

#include "base/SharedText.h"
#include "widgets/box/ChangedRanges.h"

#include <QtCore/QObject>
#include <QtCore/QString>

class QTextBlock;
class QTextDocument;

namespace ORVTListview {

// The text of a document as a box shows it to the outside: lines joined by
// CR LF, and positions that count both characters. Positions are UTF-16 units
// from 0. A position outside the text counts as the nearest one inside, one
// inside a surrogate pair or between CR and LF as the place before it. Only
// text() touches more than the line at hand.
class BoxText final : public QObject
{
    Q_OBJECT

public:
    explicit BoxText(QTextDocument &document);

    // That of a box's document, for those who build on the box.
    static const BoxText &of(const QTextDocument &document);

    qint32 length() const;
    qint32 lineCount() const;

    // Lines count from 0; a line outside the text counts as the nearest one.
    qint32 lineOf(qint32 position) const;
    qint32 lineStart(qint32 line) const;
    QString lineText(qint32 line) const;

    // The whole text. It is kept, and after a change only what changed is read
    // again. Not to be asked for while the document is inside an edit block.
    const QString &text() const;

    // The same, for whoever keeps it: it has in common with what was given before what
    // has not changed, and takes time in what has.
    const SharedText &sharedText() const;

    // Saves reading a text that has just been put in as a whole. One that is another state
    // of the text before has in common with that what sharedText() gave.
    void know(const QString &text, bool isOtherState);

    QString range(qint32 start, qint32 length) const;
    QString read(int from, int to) const; // between two document positions

    // Grows with each change of the document.
    quint64 changeCount() const { return m_changeCount; }

    qint32 toBox(int documentPosition) const;
    int toDocument(qint32 position) const;

    // A document position that is not inside a surrogate pair.
    int whole(int documentPosition) const;

private:
    // What has changed since a text was read, if it ever was.
    struct Kept
    {
        ChangedRanges changed;
        bool isKnown = false;

        bool isRight() const { return isKnown && changed.ranges().isEmpty(); }
        void becomeRight()
        {
            changed.clear();
            isKnown = true;
        }
    };
    struct Change
    {
        qint32 start = 0; // where the changes before it are carried out
        qint32 length = 0;
        QString text;
    };

    void noteChange(int from, int removed, int added);
    bool hasChangedMostly(const Kept &kept) const;
    QList<Change> changesSince(const Kept &kept) const;
    void carryOut(const QList<Change> &changes) const;
    QTextBlock blockAt(qint32 position) const;
    int documentLength() const;
    QString readAtOnce(int from, int to) const;
    QString readLines(int from, int to) const;

    QTextDocument &m_document;
    quint64 m_changeCount = 0;
    int m_length = 0; // of the document, after the last change

    mutable int m_nearLine = 0; // where a place was last looked for

    mutable QString m_text;
    mutable Kept m_keptText;
    mutable SharedText m_sharedText;
    mutable Kept m_keptSharedText;
};

} // namespace ORVTListview
