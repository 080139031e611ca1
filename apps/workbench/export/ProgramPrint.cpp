#include "workbench/export/ProgramPrint.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPageRanges>
#include <QtGui/QPagedPaintDevice>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace ORVTListview {
namespace {

// A program that is laid out in pages. Lengths are the device's pixels.
class PrintedPages
{
    Q_DECLARE_TR_FUNCTIONS(PrintedPages)

public:
    PrintedPages(const QTextDocument &program, const QString &title, QPagedPaintDevice &device)
        : m_program(program.clone())
        , m_title(title)
        , m_metrics(program.defaultFont(), &device)
        , m_paper(0, 0, device.width(), device.height())
        , m_body(m_paper.adjusted(numbersWidth(), 2 * m_metrics.lineSpacing(), 0,
                                  -2 * m_metrics.lineSpacing()))
    {
        m_program->setDocumentMargin(0);
        QTextOption option = m_program->defaultTextOption();
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_program->setDefaultTextOption(option);
        hangLines();
        m_program->documentLayout()->setPaintDevice(&device);
        m_program->setPageSize(m_body.size());
    }

    int count() const { return m_program->pageCount(); }

    // Where a page stands among those of all programs, from 0.
    struct Number
    {
        int page = 0;
        int pages = 0;
    };

    // Each once, in their order; pages may be left out.
    void draw(QPainter &painter, int page, Number number)
    {
        painter.setFont(m_program->defaultFont());
        painter.setPen(Qt::black);
        painter.drawText(m_paper, Qt::AlignTop | Qt::AlignLeft, m_title);
        painter.drawText(m_paper, Qt::AlignBottom | Qt::AlignHCenter,
                         tr("Page %1 of %2")
                             .arg(QString::number(number.page + 1), QString::number(number.pages)));
        drawNumbers(painter, page);
        drawLines(painter, page);
    }

private:
    // What a line has no room for goes on behind its indent. Margins are the device's pixels,
    // but a distance of tabs is pixels of the screen.
    void hangLines()
    {
        constexpr int columnsBehind = 4;
        const double column = m_metrics.horizontalAdvance(u' ');
        const double onScreen = QFontMetricsF(m_program->defaultFont()).horizontalAdvance(u' ');
        const double tab = m_program->defaultTextOption().tabStopDistance() * column / onScreen;
        for (QTextBlock line = m_program->begin(); line.isValid(); line = line.next()) {
            double indent = 0;
            for (const QChar c : line.text()) {
                if (c != u' ' && c != u'\t')
                    break;
                indent = c == u' ' ? indent + column : (std::floor(indent / tab + 0.01) + 1) * tab;
            }
            QTextBlockFormat format;
            format.setLeftMargin(indent + columnsBehind * column);
            format.setTextIndent(-format.leftMargin());
            QTextCursor(line).mergeBlockFormat(format);
        }
    }

    double numbersWidth() const
    {
        const QString longest = QString::number(m_program->blockCount());
        return m_metrics.horizontalAdvance(longest) + 2 * m_metrics.averageCharWidth();
    }

    void drawNumbers(QPainter &painter, int page)
    {
        painter.setPen(Qt::darkGray);
        const QAbstractTextDocumentLayout &layout = *m_program->documentLayout();
        for (; m_numbered.isValid(); m_numbered = m_numbered.next()) {
            const double top = layout.blockBoundingRect(m_numbered).top() +
                               m_numbered.layout()->lineAt(0).y() - page * m_body.height();
            if (top >= m_body.height())
                return;
            const QRectF place(0, m_body.top() + top,
                               m_body.left() - 2 * m_metrics.averageCharWidth(),
                               m_metrics.height());
            if (top > -1) // those before are of a page that was left out
                painter.drawText(place, Qt::AlignRight | Qt::AlignTop,
                                 QString::number(m_numbered.blockNumber() + 1));
        }
    }

    void drawLines(QPainter &painter, int page)
    {
        painter.save();
        painter.translate(m_body.left(), m_body.top() - page * m_body.height());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(0, page * m_body.height(), m_body.width(), m_body.height());
        context.palette.setColor(QPalette::Text, Qt::black);
        painter.setClipRect(context.clip);
        m_program->documentLayout()->draw(&painter, context);
        painter.restore();
    }

    std::unique_ptr<QTextDocument> m_program;
    QString m_title;
    QFontMetricsF m_metrics;
    QRectF m_paper;
    QRectF m_body; // where the lines are
    QTextBlock m_numbered = m_program->begin();
};

} // namespace

bool printPrograms(const QList<PrintedProgram> &programs, QPagedPaintDevice &device)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    std::vector<PrintedPages> pages;
    PrintedPages::Number number;
    for (const PrintedProgram &program : programs)
        number.pages += pages.emplace_back(*program.text, program.title, device).count();
    const QPageRanges wanted = device.pageRanges();
    bool isFirst = true;
    for (PrintedPages &each : pages) {
        for (int page = 0; page < each.count(); ++page, ++number.page) {
            if (!wanted.isEmpty() && !wanted.contains(number.page + 1))
                continue;
            if (!std::exchange(isFirst, false) && !device.newPage())
                return false;
            each.draw(painter, page, number);
        }
    }
    return painter.end();
}

} // namespace ORVTListview
