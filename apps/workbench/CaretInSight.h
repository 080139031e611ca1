#pragma once

#include <QtCore/QObject>

class QPlainTextEdit;

namespace ORVTListview {

// Keeps the line of the caret in sight when the view becomes less high, where it was until then.
class CaretInSight : public QObject
{
    Q_OBJECT

public:
    // Belongs to the box.
    explicit CaretInSight(QPlainTextEdit &box);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPlainTextEdit &m_box;
};

} // namespace ORVTListview
