#include "ListTaskMenu.h"

#include "ColoursDialog.h"
#include "ColumnsDialog.h"

#include <ORVTListview/ORVListView.h>

#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtGui/QAction>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

ListTaskMenu::ListTaskMenu(ORVListView &list, QObject *parent)
    : QObject(parent)
    , m_list(list)
    , m_columns(new QAction(tr("Columns of This Type…"), this))
    , m_colours(new QAction(tr("Colours of the Program…"), this))
{
    connect(m_columns, &QAction::triggered, this, &ListTaskMenu::arrangeColumns);
    connect(m_colours, &QAction::triggered, this, &ListTaskMenu::chooseColours);
}

QAction *ListTaskMenu::preferredEditAction() const
{
    return m_list.ListviewType() == dsCode ? m_colours : m_columns;
}

QList<QAction *> ListTaskMenu::taskActions() const
{
    return {preferredEditAction()};
}

void ListTaskMenu::arrangeColumns()
{
    ColumnsDialog dialog(m_list, QDesignerFormWindowInterface::findFormWindow(&m_list));
    if (dialog.exec() == QDialog::Accepted)
        keep(u"columnLayout"_s, dialog.layoutText(), dialog.windowTitle());
}

void ListTaskMenu::chooseColours()
{
    ColoursDialog dialog(m_list.programColours(),
                         QDesignerFormWindowInterface::findFormWindow(&m_list));
    if (dialog.exec() == QDialog::Accepted)
        keep(u"programColours"_s, dialog.colours(), dialog.windowTitle());
}

// A step with a name: others of the same property would become one step with it.
void ListTaskMenu::keep(const QString &property, const QString &text, const QString &step)
{
    auto *form = QDesignerFormWindowInterface::findFormWindow(&m_list);
    if (!form || m_list.property(qPrintable(property)).toString() == text)
        return;
    form->beginCommand(step);
    form->cursor()->setWidgetProperty(&m_list, property, text);
    form->endCommand();
}
