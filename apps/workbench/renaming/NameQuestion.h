#pragma once

#include <QtCore/QString>

#include <functional>

class QWidget;

namespace ORVTListview {

struct NameQuestion
{
    QString title;
    QString text;
    QString name;                                      // to begin with
    std::function<QString(const QString &name)> fault; // why not, as a sentence; empty for none
};

// Asks until there is no fault; what was typed stays for correction. Empty when the user gives
// up, or the window is gone.
QString askName(QWidget &window, const NameQuestion &question);

} // namespace ORVTListview
