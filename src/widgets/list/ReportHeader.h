#pragma once

#include "widgets/list/HeaderMouse.h"
#include "widgets/list/SeenSections.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyleOption>

namespace ORVTListview {

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
    QPixmap pictureOf(int column) const;
    QString text(int column) const;
    QRect roomForText(const QRect &section, int column) const;

    // That by which rows are sorted: see ReportColumn.
    int rank(int column) const;
    void paintRank(QPainter &painter, QStyleOptionHeaderV2 option, const QRect &section,
                   int rank) const;

    const SeenSections m_seen;
    HeaderMouse m_mouse;
    bool m_isHeld = false;
    bool m_isSecondClick = false;
    int m_above = 0;
    int m_below = 0;
};

} // namespace ORVTListview
