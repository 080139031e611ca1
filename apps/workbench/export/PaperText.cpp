#include "workbench/export/PaperText.h"

#include "workbench/export/PaperColours.h"

#include <ORVTListview/RichTextBox.h>

#include <QtGui/QFontInfo>
#include <QtGui/QFontMetricsF>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr int tabColumns = 4; // as the editor's

void append(QString &html, const QString &text, const QTextCharFormat &format)
{
    const bool isColoured = format.foreground().style() == Qt::SolidPattern;
    if (isColoured)
        html += u"<span style=\"color:%1\">"_s.arg(format.foreground().color().name());
    html += text.toHtmlEscaped();
    if (isColoured)
        html += u"</span>"_s;
}

QString lines(const QTextDocument &document)
{
    QString html;
    for (QTextBlock line = document.begin(); line.isValid(); line = line.next()) {
        if (line.blockNumber() > 0)
            html += u'\n';
        for (auto run = line.begin(); !run.atEnd(); ++run)
            append(html, run.fragment().text(), run.fragment().charFormat());
    }
    return html;
}

// As a style's text between apostrophes in an attribute between quotation marks.
QString quoted(QString family)
{
    return family.remove(u'\\').remove(u'\'').toHtmlEscaped();
}

} // namespace

PaperText::PaperText(const RichTextBox &box, const PaperColours &colours, Extent extent)
    : m_rtf(colours.onPaper(extent == All ? box.TextRTF() : box.SelRTF()))
    , m_paper(std::make_unique<RichTextBox>())
{
    m_paper->setFont(box.font());
    const QString tab(tabColumns, u' ');
    m_paper->setTabStopDistance(QFontMetricsF(box.font(), m_paper.get()).horizontalAdvance(tab));
    m_paper->setTextRTF(m_rtf);
}

PaperText::~PaperText() = default;

QString PaperText::html(const QString &title) const
{
    const QString head =
        title.isEmpty() ? QString() : u"<title>%1</title>"_s.arg(title.toHtmlEscaped());
    const QFont font = m_paper->font();
    const bool isInPixels = font.pointSizeF() <= 0;
    const double points = isInPixels ? QFontInfo(font).pointSizeF() : font.pointSizeF();
    // Together, since a text may hold "%1". A line feed behind <pre> is no line.
    return u"<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">%1</head>\n"
           "<body><pre style=\"font-family:'%2',monospace;font-size:%3pt;color:#000000;"
           "background:#ffffff;tab-size:%4\">\n%5</pre></body></html>"_s.arg(
               head, quoted(font.family()), QString::number(points), QString::number(tabColumns),
               lines(document()));
}

const QTextDocument &PaperText::document() const
{
    return *m_paper->document();
}

} // namespace ORVTListview
