#pragma once

#include "project/analysis/ProgramWords.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace ORVTListview {

class ProgramViews;
class RichTextBox;

// Gives words of the programs their colours when they have become other words, or known ones:
// in the lines that have them, of which nothing else changes. It works in slices.
class WordColours : public QObject
{
    Q_OBJECT

public:
    WordColours(ProgramViews &programs, QObject *parent);

    // The programs have the colours of the words that are known now.
    void take();

    // Other words may be known.
    void follow();

private:
    struct Place
    {
        qsizetype program = 0; // in the list
        qint32 line = 0;
    };

    void work();
    void colour(RichTextBox &box, qint32 line) const;
    bool isConcerned(const QString &line) const;

    ProgramViews &m_programs;
    ProgramWords m_words;
    quint64 m_changes = 0;  // of the list, when they were taken
    QSet<QString> m_others; // that are to be coloured anew, in folded case
    Place m_next;
    QTimer m_slice;
};

} // namespace ORVTListview
