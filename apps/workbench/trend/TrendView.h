#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <optional>

namespace ORVTListview {

class Trend;
class TrendPainter;

// Shows a trend, the latest time of it.
//
// Keys: Left and Right go from sample to sample, Home and End to the first and last, Esc
// leaves them; + and - show a shorter and a longer time, as the wheel with Ctrl does. What is read
// at the cursor or under the mouse is shown, and told to screen readers.
class TrendView : public QWidget
{
    Q_OBJECT

public:
    TrendView(const Trend &trend, QWidget *parent);

    // Whether what is drawn stays while samples come.
    bool isPaused() const { return m_paused.has_value(); }
    void setPaused(bool on);

    // Halves or doubles the time that is shown, from ten seconds to a week.
    void zoomIn();
    void zoomOut();

    // In milliseconds.
    qint64 span() const { return m_span; }

    // Name, last value and range of each line, as a screen reader tells them.
    QString description() const;

    // The time at the cursor and what was read then; empty without one.
    QStringList readOut() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    qint64 end() const;
    TrendPainter picture() const;
    void paintHint(QPainter &painter) const;
    void zoom(bool isIn);
    bool walk(int key);
    void setCursorAt(std::optional<qint64> when);
    void follow();

    const Trend &m_trend;
    qint64 m_span = 5LL * 60 * 1000;
    std::optional<qint64> m_paused; // the end of what is shown then
    std::optional<qint64> m_cursor;
};

} // namespace ORVTListview
