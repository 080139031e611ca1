#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyleOption>

namespace ORVTListview {

class KeptColumns;

// The header of a report list: says when a click is over and done with, so that a
// receiver may do anything. Texts stand over those of the cells; one that its column
// is too narrow for ends in an ellipsis and is shown as a tool tip.
class ReportHeader final : public QHeaderView
{
    Q_OBJECT

public:
    ReportHeader(QWidget *parent, const KeptColumns &kept);

    // Whether a shown column has room for a part of its text only.
    bool isElided(int column) const;

    // Whether the left button that was pressed on it is still down.
    bool isHeld() const;

    // For what stands over the sections, or under them, in the header.
    void setRoom(int above, int below);
    QSize sizeHint() const override;

Q_SIGNALS:
    // The text stands in another language, and the column is to have room for it.
    void textReplaced(int column);

    void released(Qt::KeyboardModifiers modifiers);

protected:
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    void paintEvent(QPaintEvent *event) override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;
    void updateGeometries() override;

private:
    int columnAt(QPoint place) const;
    bool deliverShifted(QMouseEvent &event);
    int keptDividerAt(int x) const;
    bool actOnDivider(const QMouseEvent &event);
    QString text(int column) const;
    QRect roomForText(const QRect &section, int column) const;

    // That by which rows are sorted: see ReportColumn.
    int rank(int column) const;
    void paintRank(QPainter &painter, QStyleOptionHeaderV2 option, const QRect &section,
                   int rank) const;

    const QPointer<const KeptColumns> m_kept;
    int m_pressedShift = 0;
    int m_resized = -1; // a column that stays in sight, while the user resizes it
    int m_beside = 0;   // how much wider it is than the place of the mouse says
    bool m_isHeld = false;
    bool m_isSecondClick = false;
    int m_above = 0;
    int m_below = 0;
};

} // namespace ORVTListview
