#include "workbench/export/Exporting.h"

#include "grid/rules/CellTexts.h"
#include "project/Project.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "workbench/PlainTexts.h"
#include "workbench/ProjectView.h"
#include "workbench/export/PaperText.h"
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
#include <QtGui/QPdfWriter>
#include <QtGui/QTextDocument>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

#include <algorithm>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

// One of the three kinds. Empty when no page can be made.
QByteArray programBytes(const PaperText &program, const QString &title, const QString &kind)
{
    if (kind == "rtf"_L1)
        return program.rtf().toLatin1(); // 7-bit
    if (kind == "html"_L1)
        return program.html(title).toUtf8();
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setTitle(title);
    const bool isMetric = QLocale().measurementSystem() == QLocale::MetricSystem;
    writer.setPageSize(QPageSize(isMetric ? QPageSize::A4 : QPageSize::Letter));
    writer.setPageMargins(QMarginsF(20, 15, 15, 15), QPageLayout::Millimeter);
    return printProgram(program.document(), title, writer) ? pdf.data() : QByteArray();
}

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

QString Exporting::title() const
{
    if (!m_project)
        return {};
    const qint32 program = m_views.programs().current();
    return QFileInfo(m_project->programFile(program)).completeBaseName();
}

// What users know it by.
QString Exporting::shownName() const
{
    return list().accessibleName();
}

QByteArray Exporting::programAs(const QString &kind) const
{
    const PaperText program(*list().RTextBox(), m_colours, PaperText::All);
    return programBytes(program, title(), kind);
}

// Spreadsheets take UTF-8 for it only when it begins with the mark.
QByteArray Exporting::tableAs(const QString &kind) const
{
    const qsizetype points = m_project ? m_project->rows(list().CurrentType()).size() : 0;
    const CellBlock cells = cellsOf(list(), points);
    const QString text = kind == "csv"_L1 ? commaText(cells) : tabbedText(cells);
    return byteOrderMark.toByteArray() + text.toUtf8();
}

void Exporting::exportTo(const QString &fileName)
{
    const QString kind = QFileInfo(fileName).suffix().toLower();
    const bool isCode = list().CurrentType() == dsCode;
    const QStringList kinds =
        isCode ? QStringList{u"rtf"_s, u"html"_s, u"pdf"_s} : QStringList{u"csv"_s, u"tsv"_s};
    if (!kinds.contains(kind))
        throw Error(
            FileNotWritable, u"Exporting"_s,
            tr("%1: the name ends with none of the kinds that can be written").arg(fileName));
    const QByteArray bytes = isCode ? programAs(kind) : tableAs(kind);
    if (bytes.isEmpty())
        throw Error(FileNotWritable, u"Exporting"_s,
                    tr("%1: the pages cannot be made").arg(fileName));
    writeFile(fileName, bytes);
}

void Exporting::exportShown()
{
    const bool isCode = list().CurrentType() == dsCode;
    const QStringList kinds =
        isCode ? QStringList{u"RTF (*.rtf)"_s, tr("Web page (*.html)"), u"PDF (*.pdf)"_s}
               : QStringList{tr("Table with commas (*.csv)"), tr("Table with tabs (*.tsv)")};
    const QString folder = m_project ? QFileInfo(m_project->fileName()).path() : QString();
    const QString file = askWhereToSave(m_window, tr("Export %1").arg(shownName()), kinds, folder,
                                        isCode ? title() : shownName());
    if (file.isEmpty())
        return;
    try {
        exportTo(file);
    } catch (const Error &error) {
        PlainTexts::warn(m_window, tr("Export"), error.Description());
    }
}

void Exporting::print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title());
    printer.setPageMargins(QMarginsF(20, 15, 15, 15), QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, &m_window);
    dialog.setWindowTitle(tr("Print %1").arg(shownName()));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const PaperText program(*list().RTextBox(), m_colours, PaperText::All);
    if (!printProgram(program.document(), title(), printer))
        PlainTexts::warn(m_window, tr("Print"), tr("The printer does not take the program."));
}

} // namespace ORVTListview
