#include "PointKindMenu.h"

#include "PointChooser.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

PointKindMenu::PointKindMenu(PointChooser &chooser, QWidget *parent)
    : QMenu(tr("&Choose From"), parent)
{
    const QStringList names{tr("&Inputs"), tr("&Outputs"), tr("&Variables"), tr("&Constants")};
    const QList<LwType> types = PointChooser::types();
    for (qsizetype i = 0; i < types.size(); ++i) {
        const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i));
        addAction(names.value(i), keys, &chooser,
                  [&chooser, type = types.at(i)] { chooser.choose(type); });
    }
}

} // namespace ORVTListview
