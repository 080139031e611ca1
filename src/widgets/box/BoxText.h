#pragma once

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

    qint32 length() const;
    qint32 lineCount() const;

    // Lines count from 0; a line outside the text counts as the nearest one.
    qint32 lineOf(qint32 position) const;
    qint32 lineStart(qint32 line) const;
    QString lineText(qint32 line) const;

    // The whole text. It is kept, and after a change only what changed is read
    // again. Not to be asked for while the document is inside an edit block.
    const QString &text() const;
    QString range(qint32 start, qint32 length) const;
    QString read(int from, int to) const; // between two document positions

    // Grows with each change of the document.
    quint64 changeCount() const { return m_changeCount; }

    qint32 toBox(int documentPosition) const;
    int toDocument(qint32 position) const;

    // A document position that is not inside a surrogate pair.
    int whole(int documentPosition) const;

private:
    void noteChange(int from, int removed, int added);
    void refresh() const;
    QTextBlock blockAt(qint32 position) const;
    int documentLength() const;
    QString readAtOnce(int from, int to) const;
    QString readLines(int from, int to) const;

    QTextDocument &m_document;
    quint64 m_changeCount = 0;
    int m_length = 0; // of the document, after the last change

    mutable int m_nearLine = 0; // where a place was last looked for

    mutable QString m_text;
    mutable int m_textLength = -1; // the document's length when m_text was read
    mutable int m_prefix = 0;      // document characters that m_text still has right,
    mutable int m_suffix = 0;      // from the front and from the back
    mutable bool m_stale = true;
};

} // namespace ORVTListview
