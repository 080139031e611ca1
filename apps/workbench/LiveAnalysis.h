#pragma once

#include "ResultPlace.h"
#include "project/analysis/ProgramAnalysis.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace ORVTListview {

class CodeView;
class RichTextBox;
struct Problem;

// Analyses the program while it is typed, a moment after the last key and in slices, and
// gives the editor the problems.
class LiveAnalysis : public QObject
{
    Q_OBJECT

public:
    LiveAnalysis(CodeView &view, RichTextBox &box, QObject *parent);

    void setOtherUses(const OtherUses &uses);

    // Goes on with the words that are known now.
    void takeWords();

    // Analyses what is left, at once.
    const ProgramAnalysis &finished();
    const ProgramAnalysis &found() const { return m_analysis; }
    QList<UsePlace> usesOf(const QString &name);
    const ProgramWords &words() const { return m_words; }

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    // The problems may be others.
    void analysed();

    // Not for a text that is emptied and set anew: what was there may be there again.
    void linesReplaced(const ORVTListview::ReplacedLines &lines);

private:
    void noteChange(int from, int removed, int added);
    void work();
    void showProblems();
    QList<Problem> problems() const;

    CodeView &m_view;
    RichTextBox &m_box;
    ProgramWords m_words;
    quint64 m_wordChanges = 0;
    ProgramAnalysis m_analysis;
    QTimer m_pause; // since the last key
    QTimer m_slice;
    bool m_isEmptied = false; // so that all lines are others
};

} // namespace ORVTListview
