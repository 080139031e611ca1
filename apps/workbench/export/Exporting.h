#pragma once

#include "workbench/export/PaperColours.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>

class QPagedPaintDevice;
class QWidget;

namespace ORVTListview {

class ORVListView;
class Project;
class ProjectView;

// Takes what the window shows out of it: a program into RTF, HTML, PDF, or onto a printer,
// always in the colours of paper; all of them into one PDF or onto a printer; a table into CSV
// or text with tabs.
class Exporting : public QObject
{
    Q_OBJECT

public:
    Exporting(const ProjectView &views, QWidget &window);

    // Both of what is shown from now on. The project must live until the next call.
    void setProject(const Project *project) { m_project = project; }
    void setColours(const PaperColours &colours) { m_colours = colours; }
    const PaperColours &colours() const { return m_colours; }

    // Asks for the file, of several programs which, and tells what went wrong.
    void exportShown();

    // Asks for the printer, of several programs which.
    void print();

    // Writes what is shown as the file's name ends: ".rtf", ".html", ".pdf"; ".csv", ".tsv".
    // Raises Error, and leaves the file as it was, when it ends with none of these, or
    // cannot be written.
    void exportTo(const QString &fileName);

private:
    using Programs = QList<qint32>; // none for the table that is shown

    void exportAs(const QString &fileName, const Programs &programs) const;
    void exportWhereWanted(const Programs &programs);
    static QStringList kindsOf(const Programs &programs);
    static QStringList filtersOf(const QStringList &kinds);
    QByteArray programAs(const QString &kind, qint32 program) const;
    QByteArray pdfOf(const Programs &programs) const;
    bool printOn(QPagedPaintDevice &device, const Programs &programs) const;
    QByteArray tableAs(const QString &kind) const;
    ORVListView &list() const;
    QString title(qint32 program) const;
    QString titleOf(const Programs &programs) const;
    QString shownName(const Programs &programs) const;

    const ProjectView &m_views;
    QWidget &m_window;
    const Project *m_project = nullptr;
    PaperColours m_colours;
};

} // namespace ORVTListview
