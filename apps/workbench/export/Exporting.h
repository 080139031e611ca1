#pragma once

#include "workbench/export/PaperColours.h"

#include <QtCore/QObject>

class QWidget;

namespace ORVTListview {

class ORVListView;
class Project;
class ProjectView;

// Takes what the window shows out of it: the program into RTF, HTML, PDF, or onto a
// printer, always in the colours of paper; a table into CSV or text with tabs.
class Exporting : public QObject
{
    Q_OBJECT

public:
    Exporting(const ProjectView &views, QWidget &window);

    // Both of what is shown from now on. The project must live until the next call.
    void setProject(const Project *project) { m_project = project; }
    void setColours(const PaperColours &colours) { m_colours = colours; }
    const PaperColours &colours() const { return m_colours; }

    // Asks for the file, and tells what went wrong.
    void exportShown();

    // Asks for the printer.
    void print();

    // Writes what is shown as the file's name ends: ".rtf", ".html", ".pdf"; ".csv", ".tsv".
    // Raises Error, and leaves the file as it was, when it ends with none of these, or
    // cannot be written.
    void exportTo(const QString &fileName);

private:
    QByteArray programAs(const QString &kind) const;
    QByteArray tableAs(const QString &kind) const;
    ORVListView &list() const;
    QString title() const;
    QString shownName() const;

    const ProjectView &m_views;
    QWidget &m_window;
    const Project *m_project = nullptr;
    PaperColours m_colours;
};

} // namespace ORVTListview
