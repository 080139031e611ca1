#include "editor/view/ReadableColours.h"

#include "editor/view/ViewColours.h"
#include "widgets/box/BoxLayers.h"

#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {

ReadableColours::ReadableColours(const QPlainTextEdit &box, BoxLayers &layers)
    : m_box(box)
    , m_layers(&layers)
{
}

ReadableColours::~ReadableColours()
{
    if (m_isOn)
        setOn(false);
}

void ReadableColours::setOn(bool on)
{
    m_isOn = on;
    if (!m_layers)
        return;
    if (on)
        m_layers->setTextColours(
            [this](const QColor &text, const QColor &ground) { return shown(text, ground); });
    else
        m_layers->setTextColours({});
}

// One colour for all of them: a word does not change when the caret comes to its line.
QList<QColor> ReadableColours::grounds() const
{
    return {m_ground, ViewColours::faintGround(m_ground),
            ViewColours::tinted(m_ground, m_highlight),
            ViewColours::tinted(m_ground, ViewColours::errorOn(m_ground)),
            ViewColours::foundGround(m_ground)};
}

QColor ReadableColours::shown(const QColor &text, const QColor &ground)
{
    if (ground.isValid())
        return ViewColours::onGround(text, ground, ViewColours::readable);
    const QColor own = ViewColours::groundOf(m_box);
    const QColor highlight = m_box.palette().color(QPalette::Highlight);
    if (own != m_ground || highlight != m_highlight) {
        m_ground = own;
        m_highlight = highlight;
        m_shown.clear();
    }
    auto known = m_shown.constFind(text.rgb());
    if (known == m_shown.constEnd())
        known = m_shown.insert(text.rgb(),
                               ViewColours::onGrounds(text, grounds(), ViewColours::readable));
    return *known;
}

} // namespace ORVTListview
