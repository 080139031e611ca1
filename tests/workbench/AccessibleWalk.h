#pragma once

#include <QtCore/QStringList>
#include <QtGui/QAccessible>
#include <QtWidgets/QWidget>

// Walks through what a screen reader finds in a window, and lists what it could not tell of:
// without a role, or without a name where the role wants one.
class AccessibleWalk
{
public:
    static QStringList faults(QWidget &window)
    {
        AccessibleWalk walk;
        walk.visit(QAccessible::queryAccessibleInterface(&window), {});
        return walk.m_seen > 0 ? walk.m_faults : QStringList(QStringLiteral("nothing is seen"));
    }

private:
    static bool wantsName(QAccessibleInterface &element)
    {
        switch (element.role()) {
        case QAccessible::Button: // and the others that a user acts on
        case QAccessible::ButtonDropDown:
        case QAccessible::ButtonMenu:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
        case QAccessible::ComboBox:
        case QAccessible::EditableText:
        case QAccessible::SpinBox:
        case QAccessible::Slider:
        case QAccessible::ProgressBar:
        case QAccessible::List:
        case QAccessible::Table:
        case QAccessible::Tree:
        case QAccessible::ColumnHeader:
        case QAccessible::PageTab:
        case QAccessible::PageTabList:
        case QAccessible::MenuItem:
        case QAccessible::PopupMenu:
        case QAccessible::ToolBar:
        case QAccessible::Dialog:
        case QAccessible::Window:
            return true;
        case QAccessible::TreeItem: // in other columns it is a cell
            return !element.tableCellInterface() ||
                   element.tableCellInterface()->columnIndex() == 0;
        default:
            return element.state().focusable && element.role() != QAccessible::Cell &&
                   element.role() != QAccessible::RowHeader && element.object();
        }
    }

    // The toolkit's own parts of a widget that has the name.
    static bool isPart(const QAccessibleInterface &element)
    {
        const QAccessibleInterface *above = element.parent();
        const bool isField = element.role() == QAccessible::EditableText ||
                             element.role() == QAccessible::List ||
                             element.role() == QAccessible::Button;
        return isField && above &&
               (above->role() == QAccessible::ComboBox || above->role() == QAccessible::SpinBox);
    }

    static QString textOf(const QAccessibleInterface &element)
    {
        return element.text(QAccessible::Name).trimmed();
    }

    void visit(QAccessibleInterface *element, const QString &way)
    {
        if (!element || !element->isValid() || element->state().invisible)
            return;
        ++m_seen;
        const QObject *object = element->object();
        const QString here = way + u'/' +
                             (object ? QString::fromLatin1(object->metaObject()->className()) +
                                           u'#' + object->objectName()
                                     : QString::number(element->role(), 16));
        if (element->role() == QAccessible::NoRole)
            m_faults.append(here + QStringLiteral(": no role"));
        else if (wantsName(*element) && textOf(*element).isEmpty() && !isPart(*element))
            m_faults.append(here + QStringLiteral(": no name"));
        const int most = element->tableInterface() ? 60 : element->childCount(); // of cells
        for (int i = 0; i < std::min(most, element->childCount()); ++i)
            visit(element->child(i), here);
    }

    QStringList m_faults;
    int m_seen = 0;
};
