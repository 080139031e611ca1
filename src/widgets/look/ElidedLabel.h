#pragma once

#include <QtWidgets/QLabel>

namespace ORVTListview {

// One line of plain text within the label's contents margins. A text too long for
// them ends in an ellipsis and is shown whole as a tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString line() const;
    QString shownLine() const;
};

} // namespace ORVTListview
