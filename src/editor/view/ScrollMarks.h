#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <functional>

class QPlainTextEdit;

namespace ORVTListview {

struct LineMark
{
    int position = 0; // in the document, on the line
    QColor colour;
};

// Shows on the scroll bar where in the program marks are; those added last lie above.
class ScrollMarks final : public QWidget
{
    Q_OBJECT

public:
    using Source = std::function<QList<LineMark>()>;

    // A child of the box's scroll bar.
    explicit ScrollMarks(QPlainTextEdit &box);

    void addSource(const Source &source);

    // To be called when a source has other marks.
    void refresh();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPlainTextEdit &m_box;
    QList<Source> m_sources;
};

} // namespace ORVTListview
