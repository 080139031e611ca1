#pragma once

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <algorithm>

// A style that knows how many letters it was given for one cell at most: shaping takes
// time for each of them.
class LongestText : public QProxyStyle
{
public:
    qsizetype letters() const { return m_letters; }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        note(option);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        note(option);
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

private:
    void note(const QStyleOption *option) const
    {
        if (const auto *cell = qstyleoption_cast<const QStyleOptionViewItem *>(option))
            m_letters = std::max(m_letters, cell->text.size());
    }

    mutable qsizetype m_letters = 0;
};
