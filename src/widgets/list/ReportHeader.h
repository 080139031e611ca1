#pragma once

#include <QtWidgets/QHeaderView>

namespace ORVTListview {

// The header of a report list: says when a click is over and done with, so that a
// receiver may do anything. Texts stand over those of the cells; one that its column
// is too narrow for ends in an ellipsis and is shown as a tool tip.
class ReportHeader final : public QHeaderView
{
    Q_OBJECT

public:
    explicit ReportHeader(QWidget *parent);

    // Whether a shown column has room for a part of its text only.
    bool isElided(int column) const;

Q_SIGNALS:
    // The text stands in another language, and the column is to have room for it.
    void textReplaced(int column);

    void released();

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;

private:
    QString text(int column) const;
    QRect roomForText(const QRect &section, int column) const;

    bool m_isSecondClick = false;
};

} // namespace ORVTListview
