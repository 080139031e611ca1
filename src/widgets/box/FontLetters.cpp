#include "widgets/box/FontLetters.h"

#include <QtCore/QtMath>
#include <QtGui/QFontMetricsF>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>
#include <cmath>

namespace ORVTListview {
namespace {

qreal evenWidthIn(const QFontMetricsF &metrics)
{
    const qreal width = metrics.horizontalAdvance(u' ');
    const auto isAsWide = [&](QChar letter) { return metrics.horizontalAdvance(letter) == width; };
    return isAsWide(u'i') && isAsWide(u'W') && isAsWide(u'.') ? width : 0;
}

int reachIn(const QFontMetricsF &metrics, QChar letter)
{
    const QRectF ink = metrics.boundingRect(letter);
    const qreal above = -ink.top() - std::floor(metrics.ascent());
    const qreal below = ink.bottom() - std::floor(metrics.descent());
    return std::max(0, qCeil(std::max(above, below)));
}

// Of a letter of these its place does not depend on what stands beside it.
bool standsAlone(QChar letter)
{
    static constexpr std::array scripts{QChar::Script_Common, QChar::Script_Latin,
                                        QChar::Script_Greek, QChar::Script_Cyrillic};
    return !letter.isMark() && !letter.isSurrogate() &&
           std::find(scripts.begin(), scripts.end(), letter.script()) != scripts.end();
}

} // namespace

void FontLetters::setFont(const QFont &font, const QWidget &shownOn)
{
    const QFontMetricsF metrics(font, &shownOn);
    m_font = font;
    m_shownOn = &shownOn;
    m_isKnown = true;
    m_evenWidth = evenWidthIn(QFontMetricsF(font));
    m_plainReach = 0;
    for (char16_t letter = u' '; letter <= u'~'; ++letter)
        m_plainReach = std::max(m_plainReach, reachIn(metrics, QChar(letter)));
    m_reach.clear();
}

int FontLetters::reachBeyond(QStringView text) const
{
    int reach = m_plainReach;
    for (const QChar letter : text) {
        if (!isPlain(letter) && letter != u'\t')
            reach = std::max(reach, reachOf(letter));
    }
    return reach;
}

// What stands on or below another letter is taken to be as high again as a row.
int FontLetters::reachOf(QChar letter) const
{
    auto known = m_reach.constFind(letter);
    if (known == m_reach.constEnd()) {
        const QFontMetricsF metrics(m_font, m_shownOn);
        known = m_reach.insert(letter, standsAlone(letter) ? reachIn(metrics, letter)
                                                           : qCeil(metrics.height()));
    }
    return *known;
}

} // namespace ORVTListview
