#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

namespace ORVTListview {

// Asks where to write something of several kinds, each a filter as "Web page (*.html)";
// the first is proposed. The file that comes back ends with one of them, that of the
// chosen filter when the user names none. Empty when the user does not want to, or the window
// is gone.
QString askWhereToSave(QWidget &window, const QString &title, const QStringList &kinds,
                       const QString &folder, const QString &name);

} // namespace ORVTListview
