#pragma once

#include "widgets/box/BoxLayers.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtWidgets/QWidget>

class QPlainTextEdit;

namespace ORVTListview {

// One of the columns of the margin, the outermost first.
class MarginColumn
{
public:
    MarginColumn() = default;
    virtual ~MarginColumn();
    Q_DISABLE_COPY_MOVE(MarginColumn) // known to its margin

    // 0 while there is nothing to show.
    virtual int width() const = 0;
    virtual void paint(QPainter &painter, const ShownLine &line, const QRect &cell) = 0;

    // Another number, from 0 to 15, for each look that a cell may take when text changes.
    virtual int look(const QTextBlock &line) const;

    // Whether a click on the cell does something else than select the line.
    virtual bool press(const QTextBlock &line);
    virtual QString toolTip(const QTextBlock &line) const;
};

// The strip beside the text of an editor, where its lines begin. A click selects a
// line with its end, a drag several; the focus stays with the text. It has no width, and
// is hidden, while none of its columns has one.
class EditorMargin final : public QWidget
{
    Q_OBJECT

public:
    // A child of the box, which scrolls it.
    EditorMargin(QPlainTextEdit &box, BoxLayers &layers);

    // The columns outlive the margin.
    void addColumn(MarginColumn &column);

    // To be called when a column may have another width.
    void fit();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct Hit
    {
        MarginColumn *column = nullptr;
        QTextBlock line;
    };

    // What was painted of a line, and where.
    struct Painted
    {
        QRect place;
        int look = 0;

        friend bool operator==(const Painted &, const Painted &) = default;
    };

    void place();
    void followText(const QRect &rect);
    Painted toPaint(const ShownLine &line) const;
    Hit hit(const QPoint &place) const;
    QTextBlock lineAt(int y) const;
    void paintLine(QPainter &painter, const ShownLine &line);
    void selectTo(const QTextBlock &line);
    void showToolTip(const QHelpEvent &event);

    QPlainTextEdit &m_box;
    BoxLayers &m_layers;
    QList<MarginColumn *> m_columns;
    QHash<int, Painted> m_painted; // by the line's number
    QTextCursor m_anchor;          // on the line where a drag began; null else
    int m_pointer = 0;             // its height while it drags
    QBasicTimer m_scrolling;
};

} // namespace ORVTListview
