#pragma once

#include "project/analysis/LineFacts.h"
#include "project/analysis/ProgramWords.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <functional>
#include <vector>

namespace ORVTListview {

// Where a program names a point. The line counts from 1.
struct UsePlace
{
    qint32 line = 0;
    TextPiece place;
    bool isWrite = false;

    friend bool operator==(const UsePlace &, const UsePlace &) = default;
};

// What else reads and writes points, by their names as foldedCase gives them.
struct OtherUses
{
    QSet<QString> read;
    QSet<QString> written;

    friend bool operator==(const OtherUses &, const OtherUses &) = default;
};

// What is wrong with a program, kept while it changes: a line is read again when it has
// changed, and what lies between lines is looked at when all have been read. All that is
// done in slices. Lines count from 0 where it is told of changes.
class ProgramAnalysis
{
public:
    // More are not listed, but counted.
    static constexpr qsizetype mostProblems = 1000;

    using LineText = std::function<QString(qint32 line)>;

    // Asks for a line when it reads it.
    explicit ProgramAnalysis(LineText text)
        : m_text(std::move(text))
    {
    }

    // What the words mean from here on; all lines are read again.
    void setWords(const ProgramWords &words);
    void setOtherUses(const OtherUses &uses);

    // The program has so many lines, all of them new.
    void reset(qint32 lines);

    // Lines have gone, and others came in their place. Ranges beyond the program count
    // as far as there are lines.
    void replaceLines(qint32 first, qint32 removed, qint32 added);

    qint32 lineCount() const { return m_lines.count(); }

    // Does so much, in lines; true when all is done.
    bool work(qint32 lines);
    void finish();
    bool isDone() const { return m_isDone; }

    // As they were when all was done last, from the top.
    const QList<ProgramProblem> &problems() const { return m_problems; }
    qsizetype problemCount() const { return m_problemCount; }

    // The kinds of all of them, those that are not listed included.
    const QSet<Fault> &faults() const { return m_faults; }

    // Where a name is used, known or not, in the lines that have been read.
    QList<UsePlace> usesOf(QStringView name);

    // The names that the program reads and writes, of the lines that have been read.
    OtherUses uses() const;

    // How many lines have been read so far.
    quint64 linesRead() const { return m_linesRead; }

private:
    struct Name
    {
        WordClass wordClass = WordClass::Other;
        qint32 reads = 0;
        qint32 writes = 0;
        QString folded;
    };
    struct OpenIf
    {
        qint32 line = 0;
        TextPiece place;
        bool hasElse = false;
    };
    // A walk over the lines that have all been read.
    struct Walk
    {
        qint32 line = 0;
        std::vector<OpenIf> open;
        std::vector<Fault> suspects; // by name; UnknownName for none
        QList<ProgramProblem> problems;
        QSet<Fault> faults;
        qsizetype count = 0;
    };

    qint32 readLines(qint32 most);
    void readLine(qint32 line);
    qint32 numberOf(QStringView name, WordClass wordClass);
    void forget(const LineFacts &facts);
    void restart();
    void startWalk();
    void walkLine(qint32 line);
    void walkBlocks(qint32 line, const LineFacts &facts);
    void walkElse(qint32 line, const BlockWord &word);
    void walkUses(qint32 line, const LineFacts &facts);
    void finishWalk();
    void add(qint32 line, const LineProblem &problem);
    LineProblem problemAt(Fault fault, qint32 line, TextPiece place) const;
    Fault suspicion(const Name &name) const;

    LineText m_text;
    ProgramWords m_words;
    OtherUses m_otherUses;
    AllLines m_lines;
    QHash<QString, qint32> m_numbers; // by folded name
    std::vector<Name> m_names;
    qint32 m_nextToRead = 0; // none before it is unread
    Walk m_walk;
    QList<ProgramProblem> m_problems;
    QSet<Fault> m_faults;
    qsizetype m_problemCount = 0;
    quint64 m_linesRead = 0;
    bool m_isDone = true;
};

} // namespace ORVTListview
