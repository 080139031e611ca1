#include "widgets/combo/ImageComboAccess.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

#include <utility>

namespace ORVTListview {

ImageComboAccess::ImageComboAccess(QComboBox &combo, std::function<QListView &()> list)
    : QAccessibleWidget(&combo, QAccessible::ComboBox)
    , m_combo(combo)
    , m_list(std::move(list))
{
}

QWidget *ImageComboAccess::childWidget(int index) const
{
    if (index == 0)
        return &m_list();
    return index == 1 ? m_combo.lineEdit() : nullptr;
}

// It is a window of its own.
bool ImageComboAccess::isListOpen() const
{
    return m_list().window()->isVisible();
}

int ImageComboAccess::childCount() const
{
    return 2;
}

QAccessibleInterface *ImageComboAccess::child(int index) const
{
    return QAccessible::queryAccessibleInterface(childWidget(index));
}

int ImageComboAccess::indexOfChild(const QAccessibleInterface *child) const
{
    for (int index = 0; child && index < childCount(); ++index) {
        if (child->object() == childWidget(index))
            return index;
    }
    return -1;
}

QString ImageComboAccess::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return m_combo.currentText();
    QString own = QAccessibleWidget::text(kind);
    QWidget *around = m_combo.parentWidget();
    // A control that is nothing but the combo has the name for both.
    if (!own.isEmpty() || kind != QAccessible::Name || !around || around->focusProxy() != &m_combo)
        return own;
    const QAccessibleInterface *outer = QAccessible::queryAccessibleInterface(around);
    return outer ? outer->text(kind) : own;
}

QAccessible::State ImageComboAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = isListOpen();
    state.collapsed = !isListOpen();
    state.hasPopup = true;
    state.editable = true;
    return state;
}

QStringList ImageComboAccess::actionNames() const
{
    return {showMenuAction(), pressAction()};
}

void ImageComboAccess::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction())
        QAccessibleWidget::doAction(name);
    else if (isListOpen())
        m_combo.hidePopup();
    else
        m_combo.showPopup();
}

} // namespace ORVTListview
