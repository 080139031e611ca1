#pragma once

#include "LiveAnalysis.h"
#include "project/ProjectProgram.h"

#include <QtCore/QHash>

#include <map>

namespace ORVTListview {

class ProgramViews;

// The analyses of a project's programs. What one of them reads and writes counts in the
// others.
class ProgramAnalyses : public QObject
{
    Q_OBJECT

public:
    ProgramAnalyses(ProgramViews &programs, QObject *parent);

    const ProgramList &list() const;
    LiveAnalysis &of(qint32 program) const { return *m_analyses.at(program); }

    // The words that are known now, and what the tables read and write.
    void takePoints(const OtherUses &tables);
    void takeWords();

    // Whether all programs are analysed as they are now.
    bool isDone() const;

    // All programs are analysed as far as it is left, at once.
    void finish();

    // After a change of language, or another list of programs.
    void retranslate();
    void takeList();

Q_SIGNALS:
    // The problems of a program may be others.
    void analysed();

    // As LiveAnalysis says.
    void linesReplaced(qint32 program, const ORVTListview::ReplacedLines &lines);

private:
    void add(qint32 program, LiveAnalysis *analysis);
    void noteAnalysed(qint32 program);
    void share();

    ProgramViews &m_programs;
    std::map<qint32, LiveAnalysis *> m_analyses;
    OtherUses m_tables;
    QHash<qint32, OtherUses> m_uses; // of each program
};

} // namespace ORVTListview
