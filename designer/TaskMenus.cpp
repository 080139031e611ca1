#include "TaskMenus.h"

#include "ListTaskMenu.h"

#include <ORVTListview/ORVListView.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

void TaskMenus::addTo(QDesignerFormEditorInterface &editor)
{
    QExtensionManager *manager = editor.extensionManager();
    manager->registerExtensions(new TaskMenus(manager), Q_TYPEID(QDesignerTaskMenuExtension));
}

QObject *TaskMenus::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    auto *list = qobject_cast<ORVTListview::ORVListView *>(object);
    if (!list || iid != Q_TYPEID(QDesignerTaskMenuExtension))
        return nullptr;
    return new ListTaskMenu(*list, parent);
}
