#pragma once

#include <QtCore/QObject>

class QWidget;

namespace ORVTListview {

// Takes a drag off a widget that goes while the drag is over it. The toolkit keeps the
// address of the widget until it has been left, and would go on with it.
class DragWatch final : public QObject
{
    Q_OBJECT

public:
    // Has to go before the widget.
    explicit DragWatch(QWidget &target);
    ~DragWatch() override;

    // One that becomes the widget's.
    static void installOn(QWidget &target);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_target;
    bool m_isOver = false;
};

} // namespace ORVTListview
