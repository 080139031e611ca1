#pragma once

#include "base/TextHash.h"

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

#include <vector>

namespace ORVTListview {

// Finds the widest of many texts in a font, in whole logical pixels, without
// shaping each of them. A Latin text is as wide as the sum of the advances from
// each letter to the next, which a table keeps; only a text that may be wider
// than the widest so far is measured. Other texts, and those with a ligature, are
// always measured.
class TextWidths
{
public:
    explicit TextWidths(const QFont &font);

    // Of the text as a cell shows it.
    int width(const QString &text);

    void widen(int &widest, const QString &text);

    // Drops the widths of single texts, keeps what is known of the font.
    void forgetTexts() { m_measured.clear(); }

private:
    double sumOfSteps(const QString &text);
    float step(unsigned from, unsigned to);
    float measuredStep(unsigned from, unsigned to) const;
    QList<quint32> glyphs(const QString &text) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    std::vector<float> m_steps; // from one letter of Latin-1 to the next
    TextHash<int> m_measured;
};

} // namespace ORVTListview
