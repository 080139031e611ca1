#include "editor/view/MarginAccess.h"

#include "shared/texts/TextTable.h"
#include "widgets/component/AccessFactory.h"

#include <QtWidgets/QWidget>

namespace ORVTListview {
namespace {

QAccessibleInterface *makeAccess(const QString &name, QObject *object)
{
    if (name != u"ORVTListview::EditorMargin")
        return nullptr;
    return new MarginAccess(*static_cast<QWidget *>(object));
}

} // namespace

void MarginAccess::install()
{
    static AccessFactory factory(makeAccess);
    factory.install();
}

MarginAccess::MarginAccess(QWidget &margin)
    : QAccessibleWidget(&margin, QAccessible::RowHeader)
{
}

QString MarginAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? Localise(QStringLiteral("Line numbers"))
                                     : QAccessibleWidget::text(kind);
}

} // namespace ORVTListview
