#pragma once

#include <QtWidgets/QHeaderView>

namespace ORVTListview {

// The header of a report list: says which column was clicked once the click is
// over and done with, so that a receiver may do anything, and shows the text of
// a column that is too narrow for it as a tool tip.
class ReportHeader final : public QHeaderView
{
    Q_OBJECT

public:
    explicit ReportHeader(QWidget *parent);

Q_SIGNALS:
    void columnClicked(int column);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    bool isElided(int column) const;

    int m_clicked = -1; // by the event at hand
};

} // namespace ORVTListview
