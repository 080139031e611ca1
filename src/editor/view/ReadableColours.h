#pragma once

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtGui/QColor>

class QPlainTextEdit;

namespace ORVTListview {

class BoxLayers;

// Shows each colour of a text so that it can be read on the ground of its box and on all
// that the view paints there, and as it is where it can be read.
class ReadableColours
{
public:
    ReadableColours(const QPlainTextEdit &box, BoxLayers &layers);
    ~ReadableColours();
    Q_DISABLE_COPY_MOVE(ReadableColours) // known to the box

    bool isOn() const { return m_isOn; }
    void setOn(bool on);

private:
    QColor shown(const QColor &text, const QColor &ground);
    QList<QColor> grounds() const;

    const QPlainTextEdit &m_box;
    const QPointer<BoxLayers> m_layers;
    bool m_isOn = false;
    QHash<QRgb, QColor> m_shown; // on the box's ground
    QColor m_ground;             // and on this one
    QColor m_highlight;
};

} // namespace ORVTListview
