#include "widgets/look/PlainToolTip.h"

#include "widgets/look/CellText.h"

#include <QtGui/QScreen>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr qsizetype mostLetters = 1000;
constexpr qsizetype mostLines = 15;

int widestLine(const QWidget &widget, const QFont &font)
{
    constexpr int lettersInALine = 100;
    return std::min(QFontMetrics(font).averageCharWidth() * lettersInALine,
                    widget.screen()->availableSize().width() * 3 / 4);
}

// A word that is wider than a line is broken, too.
QStringList wrapped(const QString &line, const QFont &font, int width)
{
    QTextLayout layout(line, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
        part.setLineWidth(width);
        lines.append(line.mid(part.textStart(), part.textLength()));
    }
    layout.endLayout();
    return lines;
}

QString readable(const QString &text, const QFont &font, int width)
{
    QString beginning = beginningOf(text, mostLetters);
    beginning.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::replace_if(
        beginning.begin(), beginning.end(), [](QChar letter) { return letter == u'\r'; },
        QChar(u'\n'));
    QStringList lines;
    for (const QString &line : beginning.split(u'\n'))
        lines += wrapped(shownText(line), font, width);
    if (lines.size() > mostLines) {
        lines.resize(mostLines);
        lines.append(QString(QChar(0x2026)));
    }
    return lines.join(u'\n');
}

} // namespace

void showPlainToolTip(const QHelpEvent &event, const QString &text, QWidget &widget)
{
    const QFont font = QToolTip::font();
    const QString tip = readable(text, font, widestLine(widget, font));
    QToolTip::showText(event.globalPos(),
                       Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip, &widget);
}

} // namespace ORVTListview
