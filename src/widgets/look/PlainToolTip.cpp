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

} // namespace

int widestTip(const QWidget &widget, const QFont &font)
{
    constexpr int lettersInALine = 100;
    return std::min(QFontMetrics(font).averageCharWidth() * lettersInALine,
                    widget.screen()->availableSize().width() * 3 / 4);
}

QString readableTip(const QString &text, const QFont &font, const QWidget &widget)
{
    const int width = widestTip(widget, font);
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

void showPlainToolTip(const QHelpEvent &event, const QString &text, QWidget &widget,
                      const QRect &area)
{
    const QString tip = readableTip(text, QToolTip::font(), widget);
    QToolTip::showText(event.globalPos(),
                       Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip, &widget,
                       area);
}

} // namespace ORVTListview
