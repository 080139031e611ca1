#pragma once

#include <QtCore/QLocale>
#include <QtWidgets/QDialog>

namespace ORVTListview {

class Project;
struct RecoveredWork;

// Shows what a workbench left that ended without saving beside what the files have, and
// asks what becomes of it.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Answer { Later, Restore, Discard };

    // The date of the work is written as the locale does.
    RecoveryDialog(const Project &project, const RecoveredWork &work, const QLocale &locale,
                   QWidget *parent);

    Answer answer() const { return m_answer; }

private:
    void answerWith(Answer answer);

    Answer m_answer = Answer::Later;
};

} // namespace ORVTListview
