#include "ClearButton.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QAction>
#include <QtWidgets/QLineEdit>

namespace ORVTListview {
namespace {

struct ClearButton
{
    Q_DECLARE_TR_FUNCTIONS(ClearButton)
};

} // namespace

// The button shows and tells what its action says.
void addClearButton(QLineEdit &field)
{
    field.setClearButtonEnabled(true);
    for (QAction *action : field.findChildren<QAction *>(Qt::FindDirectChildrenOnly)) {
        if (action->text().isEmpty())
            action->setText(ClearButton::tr("Empty the field"));
    }
}

} // namespace ORVTListview
