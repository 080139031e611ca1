#include "widgets/combo/ImageComboAccess.h"

#include "widgets/combo/ImageCombo.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

namespace ORVTListview {
namespace {

QAccessibleInterface *makeAccess(const QString &, QObject *object)
{
    auto *combo = qobject_cast<ImageCombo *>(object);
    return combo ? new ImageComboAccess(*combo) : nullptr;
}

} // namespace

void ImageComboAccess::install()
{
    QAccessible::installFactory(makeAccess); // takes each but once
}

ImageComboAccess::ImageComboAccess(ImageCombo &combo)
    : QAccessibleWidget(&combo, QAccessible::ComboBox)
    , m_combo(combo)
{
}

QWidget *ImageComboAccess::childWidget(int index) const
{
    if (index == 0)
        return m_combo.listView();
    return index == 1 ? m_combo.lineEdit() : nullptr;
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
        return m_combo.text();
    const QString own = QAccessibleWidget::text(kind);
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
    state.expanded = m_combo.isListOpen();
    state.collapsed = !m_combo.isListOpen();
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
    else if (m_combo.isListOpen())
        m_combo.hidePopup();
    else
        m_combo.showPopup();
}

} // namespace ORVTListview
