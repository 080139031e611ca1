#pragma once

#include "CheckResults.h"

#include <QtCore/QObject>

#include <optional>

class QWidget;

namespace ORVTListview {

class ProgramAnalyses;
class ProgramViews;
class ProjectDocument;

// What users ask of the programs as a whole: their problems, their statements.
class ProgramChecking : public QObject
{
    Q_OBJECT

public:
    struct Programs
    {
        ProgramViews &views;
        ProgramAnalyses &analyses;
    };

    // Belongs to the window.
    ProgramChecking(const Programs &programs, const ProjectDocument &document,
                    CheckResults &results, QWidget &window);

    // Both list what they find, in all programs.
    void analyse();
    void compile();

    // What was found last, in the order of the programs.
    CheckResults::Problems problems() const;

    // The current program's. Asks for the file; the problems are listed instead of a program
    // with errors.
    void exportListing();

private:
    bool hasErrors(const ProgramList &programs) const;
    QList<ListedStatement> statementsOf(qint32 program) const;
    std::optional<QList<ListedStatement>> compiled(const ProgramList &programs);

    Programs m_programs;
    const ProjectDocument &m_document;
    CheckResults &m_results;
    QWidget &m_window;
};

} // namespace ORVTListview
