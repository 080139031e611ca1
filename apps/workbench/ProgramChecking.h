#pragma once

#include "project/analysis/ProgramListing.h"

#include <QtCore/QObject>

#include <optional>

class QWidget;

namespace ORVTListview {

class CheckResults;
class LiveAnalysis;
class ProjectDocument;
class RichTextBox;

// What users ask of a program as a whole: its problems, its statements.
class ProgramChecking : public QObject
{
    Q_OBJECT

public:
    // The analysis is the box's.
    struct Program
    {
        LiveAnalysis &analysis;
        RichTextBox &box;
    };

    // Belongs to the window.
    ProgramChecking(const Program &program, const ProjectDocument &document, CheckResults &results,
                    QWidget &window);

    // Both list what they find.
    void analyse();
    void compile();

    // Asks for the file; the problems are listed instead of a program with errors.
    void exportListing();

private:
    std::optional<QList<ListedStatement>> compiled();

    Program m_program;
    const ProjectDocument &m_document;
    CheckResults &m_results;
    QWidget &m_window;
};

} // namespace ORVTListview
