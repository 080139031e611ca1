#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

#include <optional>

class QTextDocument;

namespace ORVTListview {

// Which lines of a box are known to be as finishing them leaves them, in text and colours,
// or will be when they get their colours: those that nothing has changed since all were.
class SettledLines final : public QObject
{
    Q_OBJECT

public:
    explicit SettledLines(QTextDocument &document);

    void settleAll();
    void unsettleAll();

    // From one line to another, counted from 0.
    struct Range
    {
        int first = 0;
        int last = 0;
    };

    // The others, from the top, apart from each other; none where it can be any line.
    std::optional<QList<Range>> unsettled() const;

private:
    void noteChange(int from, int removed, int added);
    void insert(const Range &changed);
    void joinNearest();

    QTextDocument &m_document;
    QList<Range> m_changed; // places in the document
    int m_length = 0;       // of the document, after the last change
    bool m_isKnown = false;
};

} // namespace ORVTListview
