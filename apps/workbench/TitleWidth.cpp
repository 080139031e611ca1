#include "TitleWidth.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace ORVTListview {

// Frames are the system's: their letters are about as wide as the window's, often bold, and their
// buttons as wide as the frame is high.
int titleWidth(const QWidget &window)
{
    using namespace Qt::StringLiterals;
    const QString title =
        window.windowTitle() + u" — "_s + QGuiApplication::applicationDisplayName();
    const int button = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    QFont letters = window.font();
    letters.setBold(true);
    return QFontMetrics(letters).horizontalAdvance(title) + 5 * button;
}

} // namespace ORVTListview
