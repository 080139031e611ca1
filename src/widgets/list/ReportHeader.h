#pragma once

#include <QtWidgets/QHeaderView>

namespace ORVTListview {

// The header of a report list: says when a click is over and done with, so that a
// receiver may do anything, and shows the text of a column that is too narrow for
// it as a tool tip.
class ReportHeader final : public QHeaderView
{
    Q_OBJECT

public:
    explicit ReportHeader(QWidget *parent);

Q_SIGNALS:
    void released();

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    bool isElided(int column) const;

    bool m_isSecondClick = false;
};

} // namespace ORVTListview
