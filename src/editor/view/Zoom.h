#pragma once

#include <QtCore/QObject>

class QPlainTextEdit;
class QWheelEvent;

namespace ORVTListview {

class BoxLayers;

// Shows the text larger or smaller; the box's font, which RTF tells of, stays. While it
// is on the wheel with Ctrl changes it.
class Zoom final : public QObject
{
    Q_OBJECT

public:
    static constexpr int off = 0;
    static constexpr int least = 20;
    static constexpr int most = 500;

    Zoom(QPlainTextEdit &box, BoxLayers &layers);

    int percent() const { return m_percent; }
    void setPercent(int percent); // brought into the range; off for what is not positive

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void turn(const QWheelEvent &event);

    QPlainTextEdit &m_box;
    BoxLayers &m_layers;
    int m_percent = off;
    int m_turned = 0; // eighths of a degree that are no step yet
};

} // namespace ORVTListview
