#include "workbench/export/Exporting.h"

#include "grid/rules/CellTexts.h"
#include "project/Project.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "workbench/PlainTexts.h"
#include "workbench/ProjectView.h"
#include "workbench/TitleWidth.h"
#include "workbench/export/PaperText.h"
#include "workbench/export/ProgramChoice.h"
#include "workbench/export/ProgramPrint.h"
#include "workbench/export/SaveAs.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QOperatingSystemVersion>
#include <QtCore/QPointer>
#include <QtGui/QPdfWriter>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

#include <algorithm>
#include <list>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

// The heads, then the first so many rows in the table's own order.
CellBlock cellsOf(const ORVListView &list, qsizetype rows)
{
    CellBlock cells{{}};
    const qint32 columns = list.ColumnHerders()->Count();
    for (qint32 column = 1; column <= columns; ++column)
        cells.first().append(list.ColumnHerders()->Item(column)->Text());
    const qsizetype count = std::min<qsizetype>(rows, list.ListItems()->Count());
    for (qint32 row = 1; row <= count; ++row) {
        const ListItem &item = *list.ListItems()->Item(row);
        QStringList texts{item.Text()};
        for (qint32 column = 1; column < columns; ++column)
            texts.append(item.SubItem(column));
        cells.append(texts);
    }
    return cells;
}

// The dialog of Windows needs a printer; the toolkit's own prints to files, too.
bool canBeAskedFor(const QPrinter &printer)
{
    return printer.outputFormat() == QPrinter::NativeFormat ||
           QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows;
}

} // namespace

Exporting::Exporting(const ProjectView &views, QWidget &window)
    : QObject(&window)
    , m_views(views)
    , m_window(window)
{
}

ORVListView &Exporting::list() const
{
    return m_views.current();
}

QString Exporting::title(qint32 program) const
{
    return m_project ? QFileInfo(m_project->programFile(program)).completeBaseName() : QString();
}

// Of a file, or a print.
QString Exporting::titleOf(const Programs &programs) const
{
    if (programs.isEmpty())
        return shownName(programs);
    if (programs.size() == 1)
        return title(programs.constFirst());
    return m_project ? m_project->name() : QString();
}

// What users know it by.
QString Exporting::shownName(const Programs &programs) const
{
    if (programs.isEmpty())
        return list().accessibleName();
    return programs.size() == 1 ? m_views.programs().view(programs.constFirst()).accessibleName()
                                : titleOf(programs);
}

QByteArray Exporting::programAs(const QString &kind, qint32 program) const
{
    const PaperText paper(*m_views.programs().view(program).RTextBox(), m_colours, PaperText::All);
    return kind == "rtf"_L1 ? paper.rtf().toLatin1() // 7-bit
                            : paper.html(title(program)).toUtf8();
}

// Empty when no page can be made.
QByteArray Exporting::pdfOf(const Programs &programs) const
{
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setTitle(titleOf(programs));
    const bool isMetric = QLocale().measurementSystem() == QLocale::MetricSystem;
    writer.setPageSize(QPageSize(isMetric ? QPageSize::A4 : QPageSize::Letter));
    writer.setPageMargins(QMarginsF(20, 15, 15, 15), QPageLayout::Millimeter);
    return printOn(writer, programs) ? pdf.data() : QByteArray();
}

bool Exporting::printOn(QPagedPaintDevice &device, const Programs &programs) const
{
    std::list<PaperText> papers;
    QList<PrintedProgram> printed;
    for (const qint32 program : programs) {
        const PaperText &paper = papers.emplace_back(*m_views.programs().view(program).RTextBox(),
                                                     m_colours, PaperText::All);
        printed.append({title(program), &paper.document()});
    }
    return printPrograms(printed, device);
}

// Spreadsheets take UTF-8 for it only when it begins with the mark.
QByteArray Exporting::tableAs(const QString &kind) const
{
    const qsizetype points = m_project ? m_project->rows(list().CurrentType()).size() : 0;
    const CellBlock cells = cellsOf(list(), points);
    const QString text = kind == "csv"_L1 ? commaText(cells) : tabbedText(cells);
    return byteOrderMark.toByteArray() + text.toUtf8();
}

// All of them go into one file only as pages.
QStringList Exporting::kindsOf(const Programs &programs)
{
    if (programs.isEmpty())
        return {u"csv"_s, u"tsv"_s};
    return programs.size() == 1 ? QStringList{u"rtf"_s, u"html"_s, u"pdf"_s}
                                : QStringList{u"pdf"_s};
}

void Exporting::exportTo(const QString &fileName)
{
    const bool isCode = list().CurrentType() == dsCode;
    exportAs(fileName, isCode ? Programs{m_views.programs().current()} : Programs());
}

void Exporting::exportAs(const QString &fileName, const Programs &programs) const
{
    const QString kind = QFileInfo(fileName).suffix().toLower();
    if (!kindsOf(programs).contains(kind))
        throw Error(
            FileNotWritable, u"Exporting"_s,
            tr("%1: the name ends with none of the kinds that can be written").arg(fileName));
    QByteArray bytes;
    if (programs.isEmpty())
        bytes = tableAs(kind);
    else
        bytes = kind == "pdf"_L1 ? pdfOf(programs) : programAs(kind, programs.constFirst());
    if (bytes.isEmpty())
        throw Error(FileNotWritable, u"Exporting"_s,
                    tr("%1: the pages cannot be made").arg(fileName));
    writeFile(fileName, bytes);
}

void Exporting::exportShown()
{
    if (list().CurrentType() != dsCode) {
        exportWhereWanted({});
        return;
    }
    const QPointer<Exporting> self(this);
    const Programs programs = askForPrograms(m_window, tr("Export"), m_views.programs());
    if (self && !programs.isEmpty())
        exportWhereWanted(programs);
}

// As the dialog for files has them.
QStringList Exporting::filtersOf(const QStringList &kinds)
{
    const QHash<QString, QString> filters = {{u"rtf"_s, u"RTF (*.rtf)"_s},
                                             {u"html"_s, tr("Web page (*.html)")},
                                             {u"pdf"_s, u"PDF (*.pdf)"_s},
                                             {u"csv"_s, tr("Table with commas (*.csv)")},
                                             {u"tsv"_s, tr("Table with tabs (*.tsv)")}};
    QStringList result;
    for (const QString &kind : kinds)
        result.append(filters.value(kind));
    return result;
}

void Exporting::exportWhereWanted(const Programs &programs)
{
    const QStringList kinds = filtersOf(kindsOf(programs));
    const QString folder = m_project ? QFileInfo(m_project->fileName()).path() : QString();
    const QPointer<Exporting> self(this);
    const QString file = askWhereToSave(m_window, tr("Export %1").arg(shownName(programs)), kinds,
                                        folder, titleOf(programs));
    if (!self || file.isEmpty())
        return;
    try {
        exportAs(file, programs);
    } catch (const Error &error) {
        PlainTexts::warn(m_window, tr("Export"), error.Description());
    }
}

void Exporting::print()
{
    const QPointer<Exporting> self(this);
    const Programs programs = askForPrograms(m_window, tr("Print"), m_views.programs());
    if (!self || programs.isEmpty())
        return;
    QPrinter printer(QPrinter::HighResolution);
    if (!canBeAskedFor(printer)) {
        PlainTexts::warn(m_window, tr("Print"), tr("There is no printer. Export as PDF instead."));
        return;
    }
    printer.setDocName(titleOf(programs));
    printer.setPageMargins(QMarginsF(20, 15, 15, 15), QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, &m_window);
    dialog.setWindowTitle(tr("Print %1").arg(shownName(programs)));
    dialog.setMinimumWidth(titleWidth(dialog));
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!printOn(printer, programs))
        PlainTexts::warn(m_window, tr("Print"), tr("The printer does not take the program."));
}

} // namespace ORVTListview
