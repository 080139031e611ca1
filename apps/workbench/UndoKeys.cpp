#include "UndoKeys.h"

#include <ORVTListview/ORVDataCombo.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace ORVTListview {
namespace {

bool isUndoOrRedo(const QKeyEvent &key)
{
    return key.modifiers() == Qt::ControlModifier &&
           (key.key() == Qt::Key_Z || key.key() == Qt::Key_Y);
}

const QLineEdit *fieldOf(const QObject *watched)
{
    const auto *combo = qobject_cast<const QComboBox *>(watched);
    return combo ? combo->lineEdit() : qobject_cast<const QLineEdit *>(watched);
}

bool isOfPoints(const QLineEdit &field)
{
    for (const QWidget *each = &field; each; each = each->parentWidget()) {
        if (qobject_cast<const ORVDataCombo *>(each))
            return true;
    }
    return false;
}

} // namespace

UndoKeys::UndoKeys(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride ||
        !isUndoOrRedo(static_cast<const QKeyEvent &>(*event)))
        return false;
    Q_EMIT pressed();
    const QLineEdit *field = fieldOf(watched);
    if (!field)
        return false;
    const bool isIdle = !field->isUndoAvailable() && !field->isRedoAvailable();
    event->setAccepted(!isIdle || !isOfPoints(*field));
    return true;
}

} // namespace ORVTListview
