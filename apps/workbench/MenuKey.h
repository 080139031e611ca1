#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

// Shift+F10 opens the context menu of what has the focus. Where the system does not say so
// itself the toolkit knows the menu key only, which many keyboards have none of.
class MenuKey : public QObject
{
    Q_OBJECT

public:
    // For all windows of the application, as long as it lives.
    MenuKey();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace ORVTListview
