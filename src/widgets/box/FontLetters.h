#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringView>
#include <QtGui/QFont>

#include <algorithm>

class QWidget;

namespace ORVTListview {

// What is to be known of a font's letters, found out once for each.
class FontLetters
{
public:
    static bool isPlain(QChar c) { return c >= u' ' && c <= u'~'; }
    static bool arePlain(QStringView text)
    {
        return std::all_of(text.begin(), text.end(), isPlain);
    }

    void setFont(const QFont &font, const QWidget &shownOn);
    bool areOf(const QFont &font) const { return m_isKnown && font == m_font; }

    // How wide each plain letter is, if all are equally wide in any style of the font; 0
    // else. Of other letters the font may have none.
    qreal evenWidth() const { return m_evenWidth; }

    // How far above and below its row a text may be painted, in pixels.
    int reachBeyond(QStringView text) const;

private:
    int reachOf(QChar letter) const;

    QFont m_font;
    const QWidget *m_shownOn = nullptr;
    bool m_isKnown = false;
    int m_plainReach = 0;
    qreal m_evenWidth = 0;
    mutable QHash<QChar, int> m_reach; // of those that are not plain
};

} // namespace ORVTListview
