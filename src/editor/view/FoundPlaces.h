#pragma once

#include "base/TextSearch.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtGui/QTextBlock>

#include <optional>
#include <vector>

namespace ORVTListview {

// Where a text stands in a document. The document is read in portions while the program
// is idle, the first one at once, and after a change only near it. Positions are the
// document's.
class FoundPlaces final : public QObject
{
    Q_OBJECT

public:
    explicit FoundPlaces(QTextDocument &document);

    // From the line of `start` on and round. An empty text ends the search. Line ends in
    // it are CR LF.
    void look(const QString &wanted, TextSearch how, int start);

    bool isLooking() const { return !m_wanted.isEmpty(); }

    // How many are known, and whether these are all. Those of a line do not overlap.
    qsizetype count() const { return m_count; }
    bool isCounted() const { return m_unread == 0; }

    // The number of the one that begins there, from 1; none while an earlier part of the
    // document has not been read.
    std::optional<qsizetype> numberOf(int position) const;

    // The first one from there on, going round; none as long as a nearer one is possible.
    std::optional<int> firstFrom(int position) const;

    // Those that begin on a line, each `length()` long.
    QList<int> on(const QTextBlock &line) const;
    int length() const;

    // Over how many line ends each goes.
    int lineEnds() const { return m_lineEnds; }

    // At most so many lines with one, all over the document, and how far it is read.
    QList<int> lines(int most) const;

Q_SIGNALS:
    void wantedChanged();
    void changed();

private:
    // Consecutive lines of the document.
    struct Part
    {
        int lines = 0;
        bool isRead = false;
        qsizetype count = 0;
        QList<int> found; // the lines that hold one, from its first line
    };
    struct Place
    {
        std::size_t part = 0;
        int firstLine = 0;
    };

    void noteChange(int from, int removed, int added);
    void replaceLines(int first, int before, int after);
    void insertUnread(std::size_t at, int lines);
    Place partOf(int line) const;
    void goOn();
    void readSome(int lines);
    void read(Part &part, int firstLine);
    void forget(Part &part);
    std::optional<int> firstIn(const Part &part, int firstLine, int position) const;

    QTextDocument &m_document;
    QString m_wanted;
    TextSearch m_how;
    int m_lineEnds = 0;
    std::vector<Part> m_parts;
    std::size_t m_next = 0; // the part to be read next, unless it is read
    std::size_t m_unread = 0;
    qsizetype m_count = 0;
    int m_lineCount = 0; // of all parts
    QTimer m_timer;
};

} // namespace ORVTListview
